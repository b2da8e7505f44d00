#pragma once

#include <windows.h>

/// The program's import of the function (its import table is shared by all of the test's code).
extern "C" decltype(&WindowFromPoint) __imp_WindowFromPoint;

namespace support {

/// While it lives, the system finds this window below every point, points beyond the screen
/// included, below which Wine finds none.
class WindowEverywhere {
 public:
  explicit WindowEverywhere(HWND window) {
    found() = window;
    before_ = put([](POINT) { return found(); });
  }
  ~WindowEverywhere() { put(before_); }
  WindowEverywhere(const WindowEverywhere&) = delete;
  WindowEverywhere& operator=(const WindowEverywhere&) = delete;

 private:
  using Function = decltype(&WindowFromPoint);

  static HWND& found() {
    static HWND window = nullptr;
    return window;
  }

  static Function put(Function function) {
    DWORD protection = 0;
    VirtualProtect(&__imp_WindowFromPoint, sizeof(Function), PAGE_READWRITE, &protection);
    const Function before = __imp_WindowFromPoint;
    __imp_WindowFromPoint = function;
    VirtualProtect(&__imp_WindowFromPoint, sizeof(Function), protection, &protection);
    return before;
  }

  Function before_;
};

}  // namespace support
