#include "forms/tree_view.h"

#include <algorithm>

namespace forms {

TreeView::TreeView(Form& form, const WidgetBox& box)
    : Widget(
          form,
          {WC_TREEVIEWW,
           TVS_SHOWSELALWAYS | TVS_DISABLEDRAGDROP | TVS_FULLROWSELECT | TVS_NOHSCROLL | WS_TABSTOP,
           WS_EX_CLIENTEDGE},
          box) {
  onKeyDown[VK_RETURN] = [this] {
    if (const std::size_t node = selected(); node != 0) onNodeClick.raise(node);
  };
}

void TreeView::add(const std::u16string& text) {
  TVINSERTSTRUCTW insert{};
  insert.hParent = TVI_ROOT;
  insert.hInsertAfter = TVI_LAST;
  insert.item.mask = TVIF_TEXT;
  insert.item.pszText = LPSTR_TEXTCALLBACKW;
  nodes_.push_back({nullptr, text});
  nodes_.back().item =
      reinterpret_cast<HTREEITEM>(send(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
}

void TreeView::remove(std::size_t number) {
  const HTREEITEM item = nodes_.at(number - 1).item;
  nodes_.erase(nodes_.begin() + static_cast<std::ptrdiff_t>(number) - 1);
  send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item));
}

void TreeView::setText(std::size_t number, const std::u16string& text) {
  nodes_.at(number - 1).text = text;
}

const std::u16string& TreeView::text(std::size_t number) const {
  return nodes_.at(number - 1).text;
}

void TreeView::select(std::size_t number) {
  const auto item = reinterpret_cast<LPARAM>(nodes_.at(number - 1).item);
  send(TVM_SELECTITEM, TVGN_CARET, item);
  send(TVM_ENSUREVISIBLE, 0, item);
}

std::size_t TreeView::selected() const {
  return numberOf(reinterpret_cast<HTREEITEM>(send(TVM_GETNEXTITEM, TVGN_CARET)));
}

void TreeView::refresh() { RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE); }

std::size_t TreeView::numberOf(HTREEITEM item) const {
  if (item == nullptr) return 0;
  const auto found =
      std::find_if(nodes_.begin(), nodes_.end(), [&](const Node& n) { return n.item == item; });
  return found == nodes_.end() ? 0 : static_cast<std::size_t>(found - nodes_.begin()) + 1;
}

LRESULT TreeView::notify(const NMHDR& header) {
  switch (header.code) {
    case TVN_GETDISPINFOW:
      giveText(const_cast<NMTVDISPINFOW&>(reinterpret_cast<const NMTVDISPINFOW&>(header)));
      break;
    case NM_CLICK:
      clicked();
      break;
    case TVN_SELCHANGEDW: {
      const auto& change = reinterpret_cast<const NMTREEVIEWW&>(header);
      if (change.action == TVC_BYKEYBOARD) {
        if (const auto node = numberOf(change.itemNew.hItem); node != 0) onNodeClick.raise(node);
      }
      break;
    }
    default:
      break;
  }
  return 0;
}

void TreeView::giveText(NMTVDISPINFOW& info) const {
  if ((info.item.mask & TVIF_TEXT) == 0 || info.item.cchTextMax <= 0) return;
  // The control may ask while a node is being added, before its handle is known: the newest then.
  std::size_t number = numberOf(info.item.hItem);
  if (number == 0) number = nodes_.size();
  if (number == 0) return;
  const std::u16string& text = nodes_[number - 1].text;
  const auto length = std::min(text.size(), static_cast<std::size_t>(info.item.cchTextMax) - 1);
  std::copy_n(text.begin(), length, info.item.pszText);
  info.item.pszText[length] = L'\0';
}

void TreeView::clicked() {
  const DWORD position = GetMessagePos();
  TVHITTESTINFO hit{};
  hit.pt = {static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
  ScreenToClient(handle(), &hit.pt);
  send(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  constexpr UINT kOnRow = TVHT_ONITEM | TVHT_ONITEMRIGHT | TVHT_ONITEMINDENT;
  const std::size_t number = numberOf(hit.hItem);
  if (number == 0 || (hit.flags & kOnRow) == 0) return;
  // The notification may come before the control selects the node itself.
  send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(hit.hItem));
  if (selected() == number) onNodeClick.raise(number);
}

TreeView::RepaintHeld::RepaintHeld(const TreeView& tree) : window_(tree.handle()) {
  SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
}

TreeView::RepaintHeld::~RepaintHeld() {
  SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(window_, nullptr, TRUE);
}

}  // namespace forms
