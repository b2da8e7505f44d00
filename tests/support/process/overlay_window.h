#pragma once

#include <windows.h>

namespace support {

/// A window of the test's own that wants to be above all others as well.
class OverlayWindow {
 public:
  explicit OverlayWindow(const RECT& rect);
  OverlayWindow(const OverlayWindow&) = delete;
  OverlayWindow& operator=(const OverlayWindow&) = delete;
  ~OverlayWindow();

  [[nodiscard]] HWND window() const { return window_; }

 private:
  HWND window_;
};

/// The top-level window that a user sees and clicks at a point of the screen.
HWND topWindowAt(POINT point);

}  // namespace support
