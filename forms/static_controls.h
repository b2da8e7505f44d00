#pragma once

#include "forms/widget.h"

/// Widgets on the system's STATIC control; they cannot have the focus.
namespace forms {

/// A text, in lines as its box is wide; smaller than usual where the box is too small for it. "&"
/// is shown as it is. Raises the mouse events.
class Label : public Widget {
 public:
  /// `box` in twips of the form's client area; throws like Widget.
  Label(WidgetHost& form, const std::u16string& caption, const WidgetBox& box)
      : Widget(form, {L"STATIC", SS_LEFT | kMouseEvents | SS_NOPREFIX, 0}, box, caption) {
    keepFitting();
  }

 protected:
  // STATIC breaks lines as DrawText does with these flags.
  [[nodiscard]] bool fits(HDC dc, const RECT& room) const override {
    RECT needed = room;
    DrawTextW(dc, win32::wide(windowText(handle())), -1, &needed,
              DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS | DT_NOPREFIX);
    return needed.right <= room.right && needed.bottom <= room.bottom;
  }

 private:
  /// Without it STATIC answers WM_NCHITTEST with HTTRANSPARENT, and the form gets the mouse.
  static constexpr DWORD kMouseEvents = SS_NOTIFY;
};

/// A horizontal etched line between two groups of widgets.
class Separator : public Widget {
 public:
  /// `box` in twips of the form's client area; throws like Widget.
  Separator(WidgetHost& form, const WidgetBox& box)
      : Widget(form, {L"STATIC", SS_ETCHEDHORZ, 0}, box) {}
};

}  // namespace forms
