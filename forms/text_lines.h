#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Line ends and positions in the texts of controls. Positions are UTF-16 code units from 0. A rich
/// edit control counts a line end as one unit, the program's texts have CR LF there, which is two.
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

}  // namespace forms
