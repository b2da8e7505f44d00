#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "capture/nhw32/controls/coordinates.h"
#include "text/readings.h"

namespace nhw32 {

/// Characters that are read on each side of a position: as far as the readings of the character at
/// it, and of the one before, can depend on them.
inline constexpr std::size_t kReach = text::kMaxReach + 1;

/// Part of a control's text. `first` is the control's position of its first character.
struct TextPart {
  std::u16string text;
  std::size_t first = 0;
};

/// The text of a text control and where its characters are, as the control's messages report them.
/// Positions are the control's own, from 0, in UTF-16 code units. Every function throws NoAnswer if
/// the control does not answer. The text may change between two calls.
class ControlText {
 public:
  virtual ~ControlText() = default;

  /// Returns the position nearest to a point: that of the character there or of the next one.
  /// Returns nullopt if the control has none or does not identify it.
  virtual std::optional<std::size_t> positionNear(ClientPoint point) = 0;
  /// Returns the text around a position: kReach characters on each side, fewer at the ends.
  virtual TextPart textAround(std::size_t position) = 0;
  /// Returns the top left corner of the character at a position, nullopt past the end of the text.
  virtual std::optional<ClientPoint> cornerOf(std::size_t position) = 0;
  /// Returns the displayed line, from 0, that contains a position.
  virtual std::size_t lineOf(std::size_t position) = 0;
  /// Returns the first position of a line, nullopt past the last line.
  virtual std::optional<std::size_t> startOf(std::size_t line) = 0;
  /// Returns whether all lines have the same height because the text has one font.
  [[nodiscard]] virtual bool linesAreAlike() const = 0;
  /// Returns the lower edge of the last line, given its upper edge `top` (client pixels), if the
  /// control or its caret shows it, otherwise nullopt. Always greater than `top`.
  virtual std::optional<int> bottomOfLastLine(int top) = 0;
  /// Returns the DPI in which client pixels are counted.
  [[nodiscard]] virtual int dpi() const = 0;
};

/// The readings of a word and its box; of a word that wraps, the box of the part on the point's
/// line.
struct PlacedWord {
  text::Readings readings;
  ClientBox box;
};

/// Returns the word under a point, nullopt if the point is not inside one of its characters. Throws
/// what `control` throws.
std::optional<PlacedWord> wordUnder(ControlText& control, ClientPoint point);

}  // namespace nhw32
