#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace forms {

/// Longest text of a message box, in UTF-16 code units. The longest description of a database error
/// (data/error.h: a path of 260 units, 160 units of the engine's words, and some 100 of its
/// own) is whole, and even 600 Han characters are 30 lines where a box is as narrow as 20 of them.
inline constexpr std::size_t kMaxBoxText = 600;

/// Longest run without a blank, in UTF-16 code units. A message box breaks lines between words and
/// grows with the longest word: 72 letters are some 450 pixels at 96 dpi, and 72 of the widest ones
/// still fit a screen of 1280 pixels at 144 dpi.
inline constexpr std::size_t kMaxBoxWord = 72;

/// `text` so that a message box with it fits the screen: cut in its middle where it is longer than
/// kMaxBoxText, and with line ends in words longer than kMaxBoxWord, after the last "\" or
/// "/" where a word has one, as a path does.
std::u16string fittedToBox(std::u16string_view text);

}  // namespace forms
