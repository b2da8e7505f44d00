#pragma once

#include "forms/tree_view.h"

namespace forms {

/// A tree whose texts stand in columns, as on a screen of characters: a code unit below 256 takes
/// one column, any other exactly two, whatever the font at hand makes of them. Scrolls both ways;
/// the left and right keys scroll as well.
class ColumnTree : public TreeView {
 public:
  ColumnTree(WidgetHost& form, const WidgetBox& box);

  void setText(std::size_t number, const std::u16string& text) override;

  /// Width of one column in pixels.
  [[nodiscard]] int columnWidth() const { return columnWidth_; }

  LRESULT notify(const NMHDR& header) override;
  void rescale() override;

 private:
  void makeFonts();
  void draw(const NMCUSTOMDRAW& drawing) const;
  void drawText(HDC dc, const RECT& row, int left, std::u16string_view text) const;

  int columnWidth_ = 0;
  int textHeight_ = 0;
  win32::OwnedFont drawingFont_;
};

}  // namespace forms
