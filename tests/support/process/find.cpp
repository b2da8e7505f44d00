#include "tests/support/process/find.h"

#include <algorithm>

#include "tests/support/process/process.h"
#include "tests/support/process/text.h"

namespace support {
namespace {

bool fits(HWND window, const WindowQuery& query) {
  if (query.process != 0 && processOf(window) != query.process) return false;
  if (query.visible && IsWindowVisible(window) == FALSE) return false;
  if (!query.className.empty() && classOf(window) != query.className) return false;
  if (query.title) {
    std::wstring title(512, L'\0');
    title.resize(static_cast<std::size_t>(GetWindowTextW(window, title.data(), 512)));
    if (title != *query.title) return false;
  }
  return true;
}

struct Search {
  const WindowQuery* query;
  HWND found;
};

BOOL CALLBACK lookAt(HWND window, LPARAM search) {
  auto* task = reinterpret_cast<Search*>(search);
  if (!fits(window, *task->query)) return TRUE;
  task->found = window;
  return FALSE;
}

struct Collection {
  std::wstring className;
  std::vector<HWND> windows;
};

BOOL CALLBACK collect(HWND window, LPARAM collection) {
  auto* task = reinterpret_cast<Collection*>(collection);
  if (task->className.empty() || lstrcmpiW(classOf(window).c_str(), task->className.c_str()) == 0) {
    task->windows.push_back(window);
  }
  return TRUE;
}

std::vector<HWND> visibleChildren(HWND parent, const std::wstring& className) {
  std::vector<HWND> children = childrenOf(parent, className);
  std::erase_if(children, [](HWND child) { return IsWindowVisible(child) == FALSE; });
  return children;
}

}  // namespace

HWND findWindow(const WindowQuery& query) {
  Search search{&query, nullptr};
  EnumWindows(lookAt, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

HWND waitForWindow(const WindowQuery& query, DWORD milliseconds) {
  const std::string what = "a window of class \"" + utf8(query.className) + "\" titled \"" +
                           utf8(query.title.value_or(L"(any)")) + "\"";
  return waitFor(
      what, [&] { return findWindow(query); }, milliseconds);
}

void waitUntilGone(HWND window) {
  waitFor("a window to go", [&] { return IsWindowVisible(window) == FALSE; });
}

std::vector<HWND> childrenOf(HWND parent, const std::wstring& className) {
  Collection collection{className, {}};
  EnumChildWindows(parent, collect, reinterpret_cast<LPARAM>(&collection));
  return collection.windows;
}

HWND waitForChild(HWND parent, const std::wstring& className) {
  return waitFor("a child of class " + utf8(className), [&]() -> HWND {
    const std::vector<HWND> children = visibleChildren(parent, className);
    return children.empty() ? nullptr : children.front();
  });
}

HWND onlyChild(HWND parent, const std::wstring& className) {
  const std::vector<HWND> children = visibleChildren(parent, className);
  if (children.size() != 1) {
    throw Failure(std::to_string(children.size()) + " visible children of class " +
                  utf8(className));
  }
  return children.front();
}

std::wstring classOf(HWND window) {
  std::wstring name(256, L'\0');
  name.resize(static_cast<std::size_t>(GetClassNameW(window, name.data(), 256)));
  return name;
}

std::wstring textOf(HWND window) {
  const auto capacity = static_cast<std::size_t>(send(window, WM_GETTEXTLENGTH)) + 1;
  std::wstring text(capacity, L'\0');
  text.resize(static_cast<std::size_t>(
      send(window, WM_GETTEXT, capacity, reinterpret_cast<LPARAM>(text.data()))));
  return text;
}

RECT rectOf(HWND window) {
  RECT rect{};
  if (GetWindowRect(window, &rect) == FALSE) throw Failure("the window is gone");
  return rect;
}

RECT clientRectOf(HWND window) {
  RECT rect{};
  GetClientRect(window, &rect);
  POINT corner{};
  ClientToScreen(window, &corner);
  OffsetRect(&rect, corner.x, corner.y);
  return rect;
}

POINT centreOf(const RECT& rect) {
  return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

SIZE sizeOf(const RECT& rect) { return {rect.right - rect.left, rect.bottom - rect.top}; }

void placeWindow(HWND window, const RECT& rect) {
  const auto place = [&] {
    SetWindowPos(window, nullptr, rect.left, rect.top, rect.right - rect.left,
                 rect.bottom - rect.top, SWP_NOZORDER | SWP_NOACTIVATE);
  };
  const auto isThere = [&] {
    const RECT now = rectOf(window);
    return EqualRect(&now, &rect) != FALSE;
  };
  actUntil("a window to stay where it is moved", place, isThere, kUntilLeftAlone);
}

bool isTopmost(HWND window) {
  return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

HWND focusIn(HWND window) {
  GUITHREADINFO information{};
  information.cbSize = sizeof information;
  GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &information);
  return information.hwndFocus;
}

void repaint(HWND window) {
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
  waitFor("a repaint", [&] {
    return GetUpdateRect(window, nullptr, FALSE) == FALSE &&
           std::ranges::all_of(childrenOf(window), [](HWND child) {
             return IsWindowVisible(child) == FALSE ||
                    GetUpdateRect(child, nullptr, FALSE) == FALSE;
           });
  });
}

LRESULT send(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  DWORD_PTR result = 0;
  if (SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, 5'000, &result) == 0) {
    throw Failure("a window of class " + utf8(classOf(window)) + " did not answer message " +
                  std::to_string(message) + ": error " + std::to_string(GetLastError()));
  }
  return static_cast<LRESULT>(result);
}

}  // namespace support
