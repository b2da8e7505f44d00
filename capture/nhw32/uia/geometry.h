#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include "capture/nhw32/reader.h"
#include "text/readings.h"

/// The portable part of reading by UI Automation: its rectangles and texts. What comes
/// from a provider is checked here before it is used.
namespace nhw32 {

/// Returns the first of `rectangles` that contains the centre of the pixel `point`, rounded
/// outwards to whole pixels. Each consists of four numbers: left, top, width, height in physical
/// screen pixels. Returns nullopt if none does, if the count is not a multiple of four, or if a
/// rectangle before the match is invalid (not finite, negative size, beyond 1,000,000 pixels).
std::optional<ScreenBox> boxUnder(std::span<const double> rectangles, ScreenPoint point);

/// Returns whether `text` is as long as one character: a code unit, a surrogate pair or a CR LF.
bool isOneCharacter(std::u16string_view text);

/// Returns how much of a unit stands before its character where a list item begins: word processors
/// make one unit of a label, a tab and the item's first character. 0 for any other unit.
std::size_t labelLength(std::u16string_view unit);

/// Returns whether `text` is all blanks.
bool isBlank(std::u16string_view text);

/// Returns whether `text` is `word`, or ends with it after a blank: the first word of a list item
/// cannot be read without the label before it.
bool isWordOrItem(std::u16string_view text, std::u16string_view word);

/// Returns the readings of `text` without the blanks around it, other than those of a part of it
/// ("well" of "well-known"); nullopt if no reading is the whole of it. A full stop at its end may
/// belong to a reading or not.
std::optional<text::Readings> onlyWord(std::u16string_view text);

}  // namespace nhw32
