#pragma once

#include <string>
#include <string_view>

namespace dictionary {

/// The text of a piece as a Chinese headword is written: notes deleted, wide forms narrowed, outer
/// quotation marks, dots and blanks gone. The foreign words that an abbreviation stands for are
/// dropped from in front of their translation, a single one only if `abbreviation` says that the
/// piece translates one.
std::u16string headwordText(std::u16string_view piece, bool abbreviation);

}  // namespace dictionary
