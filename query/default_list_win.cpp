#include "query/default_list.h"

namespace query {

void DefaultList::show(std::size_t number) {
  if (number != 0) {
    select(number);
  } else {
    send(TVM_SELECTITEM, TVGN_CARET, 0);
  }
}

LRESULT DefaultList::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_KEYDOWN && enter(wParam)) return 0;
  if (message != WM_SETFOCUS || selected() != 0) {
    return TreeView::handleMessage(message, wParam, lParam);
  }
  // The control highlights its first node when it gets the focus.
  const LRESULT result = TreeView::handleMessage(message, wParam, lParam);
  show(0);
  return result;
}

bool DefaultList::enter(WPARAM key) {
  const bool enters = key == VK_DOWN || key == VK_UP || key == VK_HOME || key == VK_END;
  if (!enters || count() == 0 || selected() != 0) return false;
  select(key == VK_END ? count() : 1);
  return true;
}

}  // namespace query
