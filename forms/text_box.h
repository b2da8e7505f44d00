#pragma once

#include "forms/widget.h"

namespace forms {

/// A single line of text to type into.
class TextBox : public Widget {
 public:
  TextBox(Form& form, const WidgetBox& box);

  [[nodiscard]] std::u16string text() const;
  /// Raises onChange like typing does.
  void setText(const std::u16string& text);

  Event<> onChange;

  void command(WORD code) override;

 protected:
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

}  // namespace forms
