#pragma once

#include <string>
#include <string_view>

/// Restoring Han characters that were lost when the source was compiled. The functions are pure.
namespace dictionary {

/// Returns the line with those Han characters restored for which the source has a substitute (a
/// Cyrillic letter, a box drawing or private-use character, a vowel with a tone mark) and whose
/// meaning is certain. What a substitute means may depend on the line's tag: "[医]" and "[化]" come
/// from books with tables of their own. Cyrillic letters next to another one are unchanged: they
/// belong to a Cyrillic word.
std::u16string restoreSubstitutes(std::u16string_view line);

}  // namespace dictionary
