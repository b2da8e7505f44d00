#pragma once

#include <functional>
#include <string>
#include <unordered_map>

#include "forms/event.h"
#include "forms/font.h"
#include "forms/geometry.h"
#include "win32/win32.h"

namespace forms {

class Form;

/// A point in a widget or form, in twips at the form's DPI, from the top left corner of its client
/// area.
struct TwipPoint {
  int x = 0;
  int y = 0;
};

/// The system control of a widget: its window class and styles, WS_CHILD and WS_VISIBLE excepted.
struct ControlKind {
  const wchar_t* className = nullptr;
  DWORD style = 0;
  DWORD exStyle = 0;
};

/// A system control on a form, usually a member of the form's class. Its geometry is in twips at
/// the form's DPI, relative to the form's client area; 15 twips are a pixel at 96 DPI.
/// User-interface thread only. A handler that throws is reported by the exception barrier.
class Widget {
 public:
  /// Creates the control, visible. Throws std::runtime_error if Windows cannot create it.
  Widget(Form& form, const ControlKind& kind, const WidgetBox& box,
         const std::u16string& caption = {});
  virtual ~Widget();
  Widget(const Widget&) = delete;
  Widget& operator=(const Widget&) = delete;

  [[nodiscard]] HWND handle() const { return handle_; }
  [[nodiscard]] Form& form() const { return form_; }

  [[nodiscard]] const WidgetBox& box() const { return box_; }
  [[nodiscard]] int left() const { return box_.left; }
  [[nodiscard]] int top() const { return box_.top; }
  [[nodiscard]] int width() const { return box_.width; }
  [[nodiscard]] int height() const { return box_.height; }
  /// Moves and sizes the control. The edges are rounded to pixels, so that neighbours stay
  /// adjacent.
  void move(const WidgetBox& box);
  void setWidth(int width);

  /// Never activates a window.
  void setVisible(bool visible);
  void setEnabled(bool enabled);
  /// Moves the focus here and raises the focus events before it returns.
  void setFocus();
  /// Throws std::runtime_error if the font cannot be created; the old one is kept then.
  void setFont(Font font);
  /// Sets the tool tip; for a control without a text it becomes the accessible name too.
  void setToolTip(const std::u16string& text);
  [[nodiscard]] const std::u16string& toolTip() const { return toolTip_; }

  Event<> onGotFocus;
  Event<> onLostFocus;
  Event<TwipPoint> onMouseMove;
  Event<TwipPoint> onMouseDown;  ///< any button
  Event<TwipPoint> onMouseUp;    ///< any button
  Event<TwipPoint> onRightMouseUp;
  /// Another widget was dropped here.
  Event<Widget&, TwipPoint> onDragDrop;
  /// Handlers by virtual-key code, for keys pressed without Ctrl or Alt; the control and the tab
  /// order never see a key that stands here.
  std::unordered_map<WPARAM, std::function<void()>> onKeyDown;

  /// Handle WM_COMMAND (its notification code) and WM_NOTIFY, which the form passes on.
  virtual void command(WORD code);
  virtual LRESULT notify(const NMHDR& header);
  /// Called after the form's DPI has changed.
  virtual void rescale();
  /// Returns whether the widget takes the mouse at a point beside it, in screen pixels.
  [[nodiscard]] virtual bool grabs(POINT /*screen*/) const { return false; }

 protected:
  virtual LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(handle_, message, wParam, lParam);
  }
  [[nodiscard]] TwipPoint pointOf(LPARAM lParam) const;

 private:
  static LRESULT CALLBACK widgetProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void raiseMouseEvents(UINT message, LPARAM lParam);
  bool takesKey(UINT message, WPARAM wParam) const;
  /// Drops the character that the message loop has made of a key: the control would beep at it, and
  /// a menu that the key opens would take it for a choice.
  void dropCharacterOf(WPARAM key) const;
  void applyBox();

  Form& form_;
  HWND handle_ = nullptr;
  WNDPROC controlProc_ = nullptr;  // the control's own
  WidgetBox box_;
  Font font_;
  win32::OwnedFont systemFont_;
  std::u16string toolTip_;
};

/// Returns the whole text of a window of this thread.
std::u16string windowText(HWND window);

/// Suppresses the repainting of a widget until the end of the scope, which invalidates all of it.
/// Does nothing to a hidden widget, which WM_SETREDRAW would show. The widget must not be shown or
/// hidden meanwhile.
class ScopedRepaintHold {
 public:
  explicit ScopedRepaintHold(const Widget& widget)
      : window_(widget.handle()), visible_(isVisible()) {
    if (!visible_) return;
    SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
    // DefWindowProc takes WS_VISIBLE away and with it all drawing. A control that keeps a flag of
    // its own instead (the tree view) would draw its scroll bars as soon as that flag is set again,
    // and a second time with the frame.
    keepsOwnFlag_ = isVisible();
    if (keepsOwnFlag_) DefWindowProcW(window_, WM_SETREDRAW, FALSE, 0);
  }
  ~ScopedRepaintHold() {
    if (!visible_) return;
    SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
    if (keepsOwnFlag_) DefWindowProcW(window_, WM_SETREDRAW, TRUE, 0);
    // The frame as well: a scroll bar that came or went meanwhile stands there. These are the flags
    // that WM_SETREDRAW's documentation asks for.
    RedrawWindow(window_, nullptr, nullptr,
                 RDW_ERASE | RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN);
  }
  ScopedRepaintHold(const ScopedRepaintHold&) = delete;
  ScopedRepaintHold& operator=(const ScopedRepaintHold&) = delete;

 private:
  [[nodiscard]] bool isVisible() const {
    return (GetWindowLongPtrW(window_, GWL_STYLE) & WS_VISIBLE) != 0;
  }

  HWND window_;
  bool visible_;
  bool keepsOwnFlag_ = false;
};

}  // namespace forms
