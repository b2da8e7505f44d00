#pragma once

#include "forms/widget.h"

namespace forms {

/// While one lives, the widget does not repaint; then once.
class RepaintHeld {
 public:
  explicit RepaintHeld(const Widget& widget) : window_(widget.handle()) {
    SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
  }
  ~RepaintHeld() {
    SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window_, nullptr, TRUE);
  }
  RepaintHeld(const RepaintHeld&) = delete;
  RepaintHeld& operator=(const RepaintHeld&) = delete;

 private:
  HWND window_;
};

}  // namespace forms
