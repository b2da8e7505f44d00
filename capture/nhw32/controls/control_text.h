#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "capture/nhw32/text_provider.h"

namespace nhw32 {

/// Part of a control's text: `text` begins at the control's position `first`.
struct TextPart {
  std::u16string text;
  std::size_t first = 0;
};

/// What a text control tells about its text. Positions are the control's own; points are pixels of
/// its client area. An implementation that gets no answer throws.
class ControlText {
 public:
  virtual ~ControlText() = default;

  /// The position nearest to a point: of the character there, or of the one behind it.
  virtual std::size_t positionNear(ScreenPoint point) = 0;
  /// The text around a position, kLongestWord characters to each side and one more, where there
  /// are as many.
  virtual TextPart textAround(std::size_t position) = 0;
  /// The top left corner of the character at a position; none behind the text.
  virtual std::optional<ScreenPoint> cornerOf(std::size_t position) = 0;
  /// The line as displayed, from 0, that holds a position.
  virtual std::size_t lineOf(std::size_t position) = 0;
  /// The first position of a line; none behind the last.
  virtual std::optional<std::size_t> startOf(std::size_t line) = 0;
  /// Whether every line is as high as the others: the text has one font.
  [[nodiscard]] virtual bool linesAreAlike() const = 0;
  /// The lower edge of the last line, whose upper edge is `top`, where the control or its caret
  /// tells it. Always below `top`.
  virtual std::optional<int> bottomOfLastLine(int top) = 0;
  /// The pixels of the client area that count as an inch.
  [[nodiscard]] virtual int dpi() const = 0;
};

/// A word and the pixels of the client area that it takes up, as far as it stands on one line.
struct PlacedWord {
  std::u16string text;
  ScreenBox box;
};

/// The word that really lies under a point of a control's client area.
std::optional<PlacedWord> wordUnder(ControlText& control, ScreenPoint point);

}  // namespace nhw32
