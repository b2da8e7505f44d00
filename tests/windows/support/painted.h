#pragma once

#include <windows.h>

#include <vector>

#include "tests/program/harness/screen.h"
#include "tests/windows/support/pump.h"
#include "tests/windows/support/screen_places.h"

namespace wintest {

/// What the screen shows of a rectangle once that no longer changes.
inline std::vector<COLORREF> settledPixels(const RECT& rect) {
  std::vector<COLORREF> last;
  eventually([&] {
    passTime(30);
    return std::exchange(last, harness::screenPixels(rect)) == last;
  });
  return last;
}

/// Whether a window shows what it shows after all of it, frame included, was painted anew.
inline bool isPaintedWhole(HWND window) {
  const std::vector<COLORREF> shown = settledPixels(rectOf(window));
  RedrawWindow(window, nullptr, nullptr,
               RDW_ERASE | RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
  return settledPixels(rectOf(window)) == shown;
}

/// Whether a window has that scroll bar (WS_VSCROLL, WS_HSCROLL) now.
inline bool hasScrollBar(HWND window, LONG_PTR style) {
  return (GetWindowLongPtrW(window, GWL_STYLE) & style) != 0;
}

}  // namespace wintest
