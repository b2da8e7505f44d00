#pragma once

#include <functional>
#include <string>
#include <unordered_map>

#include "forms/font.h"
#include "forms/geometry.h"
#include "forms/guard.h"
#include "win32/win32.h"

namespace forms {

class Form;

/// A place in a widget or form, in twips from its top left corner.
struct Place {
  int x = 0;
  int y = 0;
};

/// What a widget is made of: the system's control behind it.
struct ControlKind {
  const wchar_t* className = nullptr;
  DWORD style = 0;
  DWORD exStyle = 0;
};

/// One of the system's controls, owned by a form, with its geometry in twips and its events.
class Widget {
 public:
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
  void move(const WidgetBox& box);
  void setWidth(int width);

  void setVisible(bool visible);
  void setEnabled(bool enabled);
  void setFocus();
  void setFont(Font font);
  void setToolTip(const std::u16string& text);
  [[nodiscard]] const std::u16string& toolTip() const { return toolTip_; }

  Event<> onGotFocus;
  Event<> onLostFocus;
  Event<Place> onMouseMove;
  Event<Place> onMouseDown;  ///< any button
  Event<Place> onMouseUp;    ///< any button
  Event<Place> onRightMouseUp;
  /// Another widget was dropped here.
  Event<Widget&, Place> onDragDrop;
  /// Handlers by virtual-key code, for keys pressed without Ctrl or Alt; the control and the tab
  /// order never see a key that stands here.
  std::unordered_map<WPARAM, std::function<void()>> onKeyDown;

  /// What the form passes on of WM_COMMAND and WM_NOTIFY.
  virtual void command(WORD code);
  virtual LRESULT notify(const NMHDR& header);
  /// Called after the form moved to a monitor of another resolution.
  virtual void rescale();
  /// Whether the mouse at a screen point is this widget's although the point lies beside it.
  [[nodiscard]] virtual bool grabs(POINT /*screen*/) const { return false; }

 protected:
  virtual LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(handle_, message, wParam, lParam);
  }
  [[nodiscard]] Place placeOf(LPARAM lParam) const;

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

}  // namespace forms
