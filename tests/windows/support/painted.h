#pragma once

#include <windows.h>

#include <vector>

#include "tests/program/harness/screen.h"
#include "tests/windows/support/pump.h"
#include "tests/windows/support/screen_places.h"

namespace wintest {

/// What the screen shows of a window, frame included, once that no longer changes.
inline std::vector<COLORREF> settledPixels(HWND window) {
  std::vector<COLORREF> last;
  eventually([&] {
    passTime(30);
    return std::exchange(last, harness::screenPixels(rectOf(window))) == last;
  });
  return last;
}

/// Whether a window shows what it shows after all of it, frame included, was painted anew.
inline bool isPaintedWhole(HWND window) {
  const std::vector<COLORREF> shown = settledPixels(window);
  RedrawWindow(window, nullptr, nullptr,
               RDW_ERASE | RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
  return settledPixels(window) == shown;
}

/// Whether a window has that scroll bar (WS_VSCROLL, WS_HSCROLL) now.
inline bool hasScrollBar(HWND window, LONG_PTR style) {
  return (GetWindowLongPtrW(window, GWL_STYLE) & style) != 0;
}

}  // namespace wintest
