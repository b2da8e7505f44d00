#pragma once

#include <cstddef>
#include <string_view>

/// Positions in a text whose line ends are CR LF, as the program counts them (two) and as a rich
/// edit control does (one).
namespace forms {

/// Position in the control of position `index` in `text`. An index between CR and LF counts as the
/// one before the pair; one behind the end as the end.
std::size_t controlPosition(std::u16string_view text, std::size_t index);

/// Position in `text` of the control's `position`; the end of the text where it lies behind.
std::size_t textPosition(std::u16string_view text, std::size_t position);

}  // namespace forms
