#pragma once

#include "forms/widget.h"

namespace forms {

/// While one lives, the widget does not repaint; then it is due to be painted once, all of it.
class RepaintHeld {
 public:
  explicit RepaintHeld(const Widget& widget) : window_(widget.handle()) {
    SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
  }
  ~RepaintHeld() {
    SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
    // The frame as well: a scroll bar that came or went meanwhile stands there. These are the flags
    // that WM_SETREDRAW's documentation asks for.
    RedrawWindow(window_, nullptr, nullptr,
                 RDW_ERASE | RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN);
  }
  RepaintHeld(const RepaintHeld&) = delete;
  RepaintHeld& operator=(const RepaintHeld&) = delete;

 private:
  HWND window_;
};

}  // namespace forms
