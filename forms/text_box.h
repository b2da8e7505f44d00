#pragma once

#include "forms/widget.h"

namespace forms {

/// An edit control: a single line of text to type into, or a note of several lines to read.
class TextBox : public Widget {
 public:
  enum class Look {
    kLine,
    kNote,  ///< wraps its text and cannot be typed into
  };

  /// `box` in twips of the form's client area. Throws like Widget.
  TextBox(WidgetHost& form, const WidgetBox& box, Look look = Look::kLine);

  [[nodiscard]] std::u16string text() const;
  /// Replaces the text and raises onChange before it returns, as typing does, also if the text is
  /// the same.
  void setText(const std::u16string& text);

  /// The text was changed, by the user or by setText.
  Event<> onChange;

  void command(WORD code) override;

 protected:
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  Look look_;
};

}  // namespace forms
