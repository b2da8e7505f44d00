#pragma once

#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "forms/event.h"
#include "forms/focus.h"
#include "forms/geometry.h"
#include "forms/graphics.h"
#include "win32/win32.h"

namespace forms {

class Widget;

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

/// The part of a form that its widgets need: its window, its DPI, and the list of its widgets with
/// their tool tips. Does not own the widgets. User-interface thread only.
class WidgetHost : public FocusTarget {
 public:
  WidgetHost();

  /// The form's window; nullptr after it was destroyed.
  [[nodiscard]] HWND handle() const { return handle_; }
  /// The DPI in which the form is laid out: that of the monitor that it is on, or more for a form
  /// that grows with its texts.
  [[nodiscard]] int dpi() const { return dpi_; }
  /// The DPI of that monitor, for what the system gives at one.
  [[nodiscard]] int monitorDpi() const { return monitorDpi_; }
  /// The DPI in which texts are drawn: more than the monitor's where the user has made texts
  /// larger.
  [[nodiscard]] int textDpi() const { return textDpi_; }

  /// The colour that the form's own drawings take.
  void setForeColor(COLORREF color) { foreColor_ = color; }
  [[nodiscard]] COLORREF foreColor() const { return foreColor_; }
  /// Call when part of the form was painted; a drawing of its own, such as a grip, counts as part
  /// of the form.
  virtual void raisePaint() noexcept = 0;

  /// Returns the visible widget under a point in screen pixels, or nullptr; `except` is ignored.
  [[nodiscard]] Widget* widgetAt(POINT screen, const Widget* except = nullptr) const;
  /// Returns the widget whose control is `control`; nullptr for any other window.
  [[nodiscard]] Widget* widgetOf(HWND control) const;
  /// Returns the widget that takes the mouse at a point beside it (screen pixels), or nullptr.
  [[nodiscard]] Widget* grabberAt(POINT screen) const;

  /// For the constructor and destructor of Widget.
  void addWidget(Widget& widget);
  void removeWidget(Widget& widget);
  /// For Widget::setToolTip; "" removes the tool tip.
  void setToolTip(const Widget& widget, const std::u16string& text);

 protected:
  [[nodiscard]] const std::vector<Widget*>& widgets() const { return widgets_; }
  /// Gives the tool tips the system's font for messages at monitorDpi(). Call after either has
  /// changed. Throws std::runtime_error if it cannot be created; the old one is kept then.
  void setToolTipFont();

  HWND handle_ = nullptr;
  int dpi_ = 96;
  int monitorDpi_ = 96;
  int textDpi_ = 96;

 private:
  void createToolTip();

  COLORREF foreColor_ = 0;
  std::vector<Widget*> widgets_;
  HWND toolTip_ = nullptr;  // owned by the form's window, which destroys it
  win32::OwnedFont toolTipFont_;
};

/// A system control on a form, usually a member of the form's class. Its geometry is in twips at
/// the form's DPI, relative to the form's client area; 15 twips are a pixel at 96 DPI.
/// User-interface thread only. A handler that throws is reported by the exception barrier.
class Widget : public FocusTarget {
 public:
  /// Creates the control, visible. Throws std::runtime_error if Windows cannot create it.
  Widget(WidgetHost& form, const ControlKind& kind, const WidgetBox& box,
         const std::u16string& caption = {});
  ~Widget() override;

  [[nodiscard]] HWND handle() const { return handle_; }
  [[nodiscard]] WidgetHost& form() const { return form_; }

  [[nodiscard]] const WidgetBox& box() const { return box_; }
  [[nodiscard]] int left() const { return box_.left; }
  [[nodiscard]] int top() const { return box_.top; }
  [[nodiscard]] int width() const { return box_.width; }
  [[nodiscard]] int height() const { return box_.height; }
  /// Moves and sizes the control. The edges are rounded to pixels, so that neighbours stay
  /// adjacent.
  void move(const WidgetBox& box);
  void setWidth(int width);

  /// Shows or hides the control; never activates a window.
  void setVisible(bool visible);
  void setEnabled(bool enabled);
  /// Moves the focus here and raises the focus events before it returns.
  void setFocus();
  /// A widget that shows a text of the program's takes a smaller size where that text would be cut.
  /// Throws std::runtime_error if the font cannot be created; the old one is kept then.
  void setFont(Font font);
  /// Sets the tool tip. A control without a text of its own takes it as its text, which screen
  /// readers read as the control's name; the text changes and goes with the tool tip.
  void setToolTip(const std::u16string& text);
  [[nodiscard]] const std::u16string& toolTip() const { return toolTip_; }

  /// Focus events in the order that focus.h describes.
  Event<> onGotFocus;
  Event<> onLostFocus;
  /// Points from the control's top left corner. Raised before the control handles the message.
  Event<TwipPoint> onMouseMove;
  Event<TwipPoint> onMouseDown;  ///< any button
  Event<TwipPoint> onMouseUp;    ///< any button
  Event<TwipPoint> onRightMouseUp;
  /// Another widget was dropped here.
  Event<Widget&, TwipPoint> onDragDrop;
  /// Text that is typed here, for a widget that takes none itself: one UTF-16 code unit, or all
  /// that an input method has composed. Blanks and control characters are left to the control,
  /// which sees nothing of the rest. Without a handler the control gets everything.
  Event<const std::u16string&> onText;
  /// Handlers by virtual-key code, for keys pressed without Ctrl or Alt. The control and the dialog
  /// keys (Tab, Enter, Esc) never see a key that has a handler.
  std::unordered_map<WPARAM, std::function<void()>> onKeyDown;

  /// Handle WM_COMMAND (its notification code) and WM_NOTIFY, which the form passes on.
  virtual void command(WORD code);
  virtual LRESULT notify(const NMHDR& header);
  /// Called after the form's DPI has changed.
  virtual void rescale();
  /// Called after the user may have changed the system's colours or its high contrast.
  virtual void recolor() {}
  /// Returns whether the widget takes the mouse at a point beside it, in screen pixels.
  [[nodiscard]] virtual bool grabs(POINT /*screen*/) const { return false; }

  /// Called when the form becomes active while the widget has the focus, before Form_Activate.
  virtual void formActivated() {}

  void raiseGotFocus() noexcept override { onGotFocus.raise(); }
  void raiseLostFocus() noexcept override { onLostFocus.raise(); }

 protected:
  virtual LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam);
  /// Returns whether the widget's text fits into its client area, `room`, in the font that is
  /// selected into `dc`.
  [[nodiscard]] virtual bool fits(HDC /*dc*/, const RECT& /*room*/) const { return true; }
  /// Chooses the font's size anew, for a text or a place that is new.
  void fitText();
  /// From now on does so whenever the widget gets another size; for constructors of classes with a
  /// fits() of their own.
  void keepFitting() {
    keepsFitting_ = true;
    fitText();
  }
  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(handle_, message, wParam, lParam);
  }
  [[nodiscard]] TwipPoint pointOf(LPARAM lParam) const;

 private:
  static LRESULT CALLBACK widgetProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void raiseMouseEvents(UINT message, LPARAM lParam);
  bool takesKey(UINT message, WPARAM wParam) const;
  bool raiseText(UINT message, WPARAM wParam, LPARAM lParam) const;
  /// Removes the WM_CHAR that the message loop has made of a key: the control would beep at it, and
  /// a menu that the key opens would take it for a choice.
  void dropCharacterOf(WPARAM key) const;
  void applyBox();
  [[nodiscard]] bool fitsAt(LOGFONTW description, int height, const RECT& room) const;

  WidgetHost& form_;
  HWND handle_ = nullptr;
  WNDPROC controlProc_ = nullptr;  // the control's own
  WidgetBox box_;
  Font font_;
  bool keepsFitting_ = false;
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
  explicit ScopedRepaintHold(const Widget& widget);
  ~ScopedRepaintHold();
  ScopedRepaintHold(const ScopedRepaintHold&) = delete;
  ScopedRepaintHold& operator=(const ScopedRepaintHold&) = delete;

 private:
  [[nodiscard]] bool isVisible() const;

  HWND window_;
  bool visible_;
  bool keepsOwnFlag_ = false;
};

}  // namespace forms
