#pragma once

#include <windows.h>

#include <vector>

#include "tests/support/process/screen.h"
#include "tests/support/wait.h"
#include "tests/support/window/window_geometry.h"

namespace support {

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

}  // namespace support
