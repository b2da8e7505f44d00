#pragma once

#include <windows.h>

namespace harness {

/// A window of the test's own that wants to be above all others as well.
class Cover {
 public:
  explicit Cover(const RECT& rect);
  Cover(const Cover&) = delete;
  Cover& operator=(const Cover&) = delete;
  ~Cover();

  [[nodiscard]] HWND window() const { return window_; }

 private:
  HWND window_;
};

/// The top-level window that a user sees and clicks at a point of the screen.
HWND topWindowAt(POINT point);

}  // namespace harness
