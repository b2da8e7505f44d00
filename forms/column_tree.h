#pragma once

#include "forms/tree_view.h"

namespace forms {

/// A tree whose texts line up in columns, as on a screen of characters: a code unit below 256 takes
/// one column, any other exactly two, whatever their widths in the font are. Scrolls both ways; the
/// Left and Right keys scroll as well.
class ColumnTree : public TreeView {
 public:
  ColumnTree(WidgetHost& form, const WidgetBox& box);

  /// Has the control measure the node again: it scrolls as far as its widest text.
  void setText(std::size_t number, const std::u16string& text) override;

  /// Width of one column in pixels at the form's DPI: half the font's height.
  [[nodiscard]] int columnWidth() const { return columnWidth_; }

  void rescale() override;

 protected:
  void drawText(HDC dc, const RECT& row, int left, std::u16string_view text) const override;

 private:
  void makeFonts();

  int columnWidth_ = 0;
  int textHeight_ = 0;
  win32::OwnedFont drawingFont_;
};

}  // namespace forms
