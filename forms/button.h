#pragma once

#include "forms/graphics.h"
#include "forms/widget.h"

namespace forms {

/// A push button with a caption or a picture.
class Button : public Widget {
 public:
  Button(WidgetHost& form, const std::u16string& caption, const WidgetBox& box);
  Button(WidgetHost& form, const Picture& picture, const WidgetBox& box);

  /// Shows `picture`; the button's name for screen readers is its tool tip.
  void setPicture(const Picture& picture);
  [[nodiscard]] const Picture& picture() const { return picture_; }

  Event<> onClick;

  void command(WORD code) override;
  void rescale() override;

 private:
  void showPicture();

  Picture picture_;
};

}  // namespace forms
