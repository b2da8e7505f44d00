#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The text of a rich edit control: positions in a text whose line ends are CR LF, as the program
/// counts them (two) and as the control does (one), and the blanks at its lines' beginnings.
namespace forms {

/// The no-break space (U+00A0), which looks like a blank.
inline constexpr char16_t kNoBreakSpace = u'\u00A0';

/// `text` with each blank at the beginning of a line replaced by kNoBreakSpace.
std::u16string withFirmBlanks(std::u16string_view text);

/// Position in the control of position `index` in `text`. An index between CR and LF counts as the
/// one before the pair; one behind the end as the end.
std::size_t controlPosition(std::u16string_view text, std::size_t index);

/// Position in `text` of the control's `position`; the end of the text where it lies behind.
std::size_t textPosition(std::u16string_view text, std::size_t position);

}  // namespace forms
