#pragma once

#include "forms/widget.h"

namespace forms {

/// While one lives, the widget does not repaint; then it is due to be painted once, all of it.
/// Does nothing to a hidden widget, which WM_SETREDRAW would show. The widget must not be shown or
/// hidden meanwhile.
class RepaintHeld {
 public:
  explicit RepaintHeld(const Widget& widget)
      : window_(widget.handle()),
        visible_((GetWindowLongPtrW(window_, GWL_STYLE) & WS_VISIBLE) != 0) {
    if (visible_) setRedraw(FALSE);
  }
  ~RepaintHeld() {
    if (!visible_) return;
    setRedraw(TRUE);
    // The frame as well: a scroll bar that came or went meanwhile stands there. These are the flags
    // that WM_SETREDRAW's documentation asks for.
    RedrawWindow(window_, nullptr, nullptr,
                 RDW_ERASE | RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN);
  }
  RepaintHeld(const RepaintHeld&) = delete;
  RepaintHeld& operator=(const RepaintHeld&) = delete;

 private:
  // A control that keeps a flag of its own for WM_SETREDRAW (the tree view) holds back its items
  // only: once the flag is set again it draws its scroll bars, which then are drawn a second time
  // with the frame. DefWindowProc takes WS_VISIBLE away and with it all drawing.
  void setRedraw(BOOL redraw) const {
    SendMessageW(window_, WM_SETREDRAW, static_cast<WPARAM>(redraw), 0);
    DefWindowProcW(window_, WM_SETREDRAW, static_cast<WPARAM>(redraw), 0);
  }

  HWND window_;
  bool visible_;
};

}  // namespace forms
