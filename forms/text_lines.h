#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Line ends, positions and line breaks in the texts of controls and message boxes. Lengths and
/// positions are UTF-16 code units, positions from 0. A rich edit control counts a line end as one
/// unit, the program's texts have CR LF there, which is two.
namespace forms {

/// The no-break space (U+00A0), which looks like a blank.
inline constexpr char16_t kNoBreakSpace = u'\u00A0';

/// Returns `text` with every line end (CR, LF or CR LF) as CR LF.
std::u16string withWindowsLineEnds(std::u16string_view text);

/// Returns `text` with each blank at the beginning of a line replaced by kNoBreakSpace.
std::u16string withFirmBlanks(std::u16string_view text);

/// Converts an index in `text` to the control's position. An index between CR and LF counts as the
/// one before CR, an index past the end as the end.
std::size_t controlPosition(std::u16string_view text, std::size_t index);

/// Converts the control's `position` to an index in `text`; the end of the text if it is past it.
std::size_t textPosition(std::u16string_view text, std::size_t position);

/// Longest text of a message box. The longest description of a database error (data/error.h: a path
/// of 260 units, 160 units of the engine's words, and some 100 of its own) is shown whole, and even
/// 600 Han characters are 30 lines where a box is as narrow as 20 of them.
inline constexpr std::size_t kMaxBoxText = 600;

/// Longest run without a blank in a message box, which breaks lines between words and grows with
/// the longest word: 72 letters are some 450 pixels at 96 dpi, and 72 of the widest ones still fit
/// a screen of 1280 pixels at 144 dpi.
inline constexpr std::size_t kMaxBoxWord = 72;

/// Returns `text` so that a message box with it fits the screen: cut in its middle if it is longer
/// than kMaxBoxText, and with line ends in words longer than kMaxBoxWord, after the last "\" or "/"
/// if a word has one, as a path does.
std::u16string fittedToBox(std::u16string_view text);

}  // namespace forms
