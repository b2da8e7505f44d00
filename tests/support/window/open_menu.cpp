#include "tests/support/window/open_menu.h"

namespace support {
namespace {

/// Message of the menus' own window class that yields the menu.
constexpr UINT kGetMenuHandle = 0x01E1;

HMENU menuOf(HWND menuWindow) {
  return reinterpret_cast<HMENU>(SendMessageW(menuWindow, kGetMenuHandle, 0, 0));
}

}  // namespace

HWND openMenu() {
  HWND window = nullptr;
  while ((window = FindWindowExW(nullptr, window, L"#32768", nullptr)) != nullptr) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId() && IsWindowVisible(window)) return window;
  }
  return nullptr;
}

std::vector<MenuLine> linesOf(HWND menuWindow) {
  HMENU menu = menuOf(menuWindow);
  std::vector<MenuLine> lines;
  for (UINT place = 0; place < static_cast<UINT>(GetMenuItemCount(menu)); ++place) {
    wchar_t caption[64] = L"";
    const int length = GetMenuStringW(menu, place, caption, 64, MF_BYPOSITION);
    const UINT state = GetMenuState(menu, place, MF_BYPOSITION);
    if ((state & MF_SEPARATOR) != 0) {
      lines.push_back({u"-"});
    } else {
      lines.push_back({std::u16string(caption, caption + length),
                       (state & (MF_GRAYED | MF_DISABLED)) == 0, (state & MF_CHECKED) != 0});
    }
  }
  return lines;
}

int highlighted(HWND menuWindow) {
  HMENU menu = menuOf(menuWindow);
  for (int place = 0; place < GetMenuItemCount(menu); ++place) {
    const UINT state = GetMenuState(menu, static_cast<UINT>(place), MF_BYPOSITION);
    if ((state & MF_SEPARATOR) == 0 && (state & MF_HILITE) != 0) return place;
  }
  return -1;
}

}  // namespace support
