#pragma once

#include "tests/support/window/scoped_import.h"

extern "C" decltype(&WindowFromPoint) __imp_WindowFromPoint;

namespace support {

/// While it lives, the system finds this window below every point, points beyond the screen
/// included, below which Wine finds none.
class WindowEverywhere {
 public:
  explicit WindowEverywhere(HWND window) { found() = window; }

 private:
  static HWND& found() {
    static HWND window = nullptr;
    return window;
  }

  ScopedImport<decltype(&WindowFromPoint)> import_{__imp_WindowFromPoint,
                                                   [](POINT) { return found(); }};
};

}  // namespace support
