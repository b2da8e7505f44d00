#pragma once

#include "forms/graphics.h"
#include "forms/widget.h"

namespace forms {

/// A push button with a picture, or with a caption, which is smaller than usual where the button is
/// too small for it. Enter presses it as Space does.
class Button : public Widget {
 public:
  /// `box` in twips of the form's client area. Both throw like Widget.
  Button(WidgetHost& form, const std::u16string& caption, const WidgetBox& box);
  Button(WidgetHost& form, const Picture& picture, const WidgetBox& box);

  /// Shows `picture`; the button's name for screen readers is its tool tip (Widget::setToolTip).
  void setPicture(const Picture& picture);
  [[nodiscard]] const Picture& picture() const { return picture_; }

  /// Pressed with the mouse, Space or Enter.
  Event<> onClick;

  void command(WORD code) override;
  void rescale() override;

 protected:
  [[nodiscard]] bool fits(HDC dc, const RECT& room) const override;

 private:
  void showPicture();

  Picture picture_;
};

}  // namespace forms
