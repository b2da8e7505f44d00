#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "capture/nhw32/reader.h"

namespace nhw32 {

/// Part of a control's text. `first` is the control's position of its first character.
struct TextPart {
  std::u16string text;
  std::size_t first = 0;
};

/// The text of a text control and where its characters are. Positions are the control's own, from
/// 0; points are client pixels of the target. Every function throws (NoAnswer) if the control does
/// not answer.
class ControlText {
 public:
  virtual ~ControlText() = default;

  /// Returns the position nearest to a point: that of the character there or of the next one.
  virtual std::size_t positionNear(ScreenPoint point) = 0;
  /// Returns the text around a position: kMaxWord + 1 characters on each side, fewer at the ends.
  virtual TextPart textAround(std::size_t position) = 0;
  /// Returns the top left corner of the character at a position, nullopt past the end of the text.
  virtual std::optional<ScreenPoint> cornerOf(std::size_t position) = 0;
  /// Returns the displayed line, from 0, that contains a position.
  virtual std::size_t lineOf(std::size_t position) = 0;
  /// Returns the first position of a line, nullopt past the last line.
  virtual std::optional<std::size_t> startOf(std::size_t line) = 0;
  /// Returns whether all lines have the same height because the text has one font.
  [[nodiscard]] virtual bool linesAreAlike() const = 0;
  /// Returns the lower edge of the last line, given its upper edge `top`, if the control or its
  /// caret tells it. Always greater than `top`.
  virtual std::optional<int> bottomOfLastLine(int top) = 0;
  /// Returns the DPI in which client pixels are counted.
  [[nodiscard]] virtual int dpi() const = 0;
};

/// A word and its box in client pixels; of a word that wraps, the box of the part on one line.
struct PlacedWord {
  std::u16string text;
  ScreenBox box;
};

/// Returns the word under a client point, nullopt if the point is not inside one of its characters.
/// Throws what `control` throws.
std::optional<PlacedWord> wordUnder(ControlText& control, ScreenPoint point);

}  // namespace nhw32
