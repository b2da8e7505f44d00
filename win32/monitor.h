#pragma once

#include "win32/win32.h"

namespace win32 {

/// A monitor's place and resolution, as a program that is aware of each monitor's DPI sees them.
struct Monitor {
  RECT bounds{};  ///< screen pixels
  RECT work{};    ///< the part of `bounds` that the taskbar leaves, in screen pixels
  int dpi = 96;   ///< effective resolution, which includes the user's scaling
};

/// Returns the monitor that most of `window` is on, or the nearest.
Monitor monitorOf(HWND window);

/// Returns the monitor at `point`, in screen pixels, or the nearest.
Monitor monitorAt(POINT point);

/// Returns what a top-level window's frame takes at `dpi`: outer size less client size, in pixels.
SIZE frameOf(DWORD style, DWORD exStyle, int dpi);

}  // namespace win32
