#pragma once

#include "forms/widget.h"

namespace forms {

/// A single line of text to type into, or a note of several lines to read.
class TextBox : public Widget {
 public:
  enum class Look {
    kLine,
    kNote,  ///< wraps its text and cannot be typed into
  };

  TextBox(WidgetHost& form, const WidgetBox& box, Look look = Look::kLine);

  [[nodiscard]] std::u16string text() const;
  /// Raises onChange like typing does.
  void setText(const std::u16string& text);

  Event<> onChange;

  void command(WORD code) override;

 protected:
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  Look look_;
};

}  // namespace forms
