#pragma once

#include "forms/win32.h"

namespace forms {

/// A monitor's place and resolution.
struct Monitor {
  RECT bounds{};  ///< screen pixels
  RECT work{};    ///< what the taskbar leaves of them
  int dpi = 96;
};

Monitor monitorOf(HWND window);
Monitor monitorAt(POINT point);

/// What a top-level window's frame takes at `dpi`: outer size less client size, in pixels.
SIZE frameOf(DWORD style, DWORD exStyle, int dpi);

}  // namespace forms
