#pragma once

#include <initializer_list>
#include <optional>
#include <string_view>
#include <vector>

#include "forms/widget.h"

namespace forms {

/// A part of a text in one colour.
struct TextRun {
  std::u16string_view text;
  COLORREF color = 0;
};

/// A read-only pane of coloured text, on a background on which its colours can be read: white where
/// the theme's is too dark for them, and in high contrast. Positions and lengths are UTF-16 code
/// units of the text as it was set, from 0, where CR LF counts two. No line is broken directly
/// after the blank that it begins with.
class RichTextBox : public Widget {
 public:
  enum class Look {
    kPane,     ///< a sunken part of a window
    kToolTip,  ///< all of a window that looks like a tool tip: its background, a thin edge, no
               ///< tab stop; only the characters get another background
  };

  RichTextBox(WidgetHost& form, const WidgetBox& box, Look look = Look::kPane);

  /// Replaces the text; all of it takes the default colour, nothing is selected.
  void setText(const std::u16string& text);
  /// Replaces the text by the runs, one after the other, each in its colour, and puts the caret at
  /// the position `caret`. Repainted once.
  void setRuns(std::initializer_list<TextRun> runs, std::size_t caret = 0);
  /// The text as the control holds it, with CR LF line ends.
  [[nodiscard]] std::u16string text() const;

  void select(std::size_t start, std::size_t length);
  [[nodiscard]] std::size_t selStart() const;
  [[nodiscard]] std::size_t selLength() const;
  [[nodiscard]] std::u16string selText() const;
  void setSelColor(COLORREF color);
  /// Indents every wrapped line by `twips` against the first of its paragraph, in all texts set
  /// from now on.
  void setHangingIndent(int twips);

  void rescale() override;
  void recolor() override { showBackground(); }

 protected:
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  [[nodiscard]] TwipPoint caretPlace() const;
  void copy() const;
  void keepMargins();
  void colorRuns();
  void showBackground();

  struct ColoredLength {
    std::size_t length;
    COLORREF color;
  };
  Look look_;
  std::vector<ColoredLength> runs_;
  std::optional<COLORREF> behind_;  // the control's background
  std::u16string text_;
  int hangingIndent_ = 0;
};

}  // namespace forms
