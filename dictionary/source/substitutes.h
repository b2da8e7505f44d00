#pragma once

#include <span>
#include <string>
#include <string_view>

/// Restoring Han characters that were lost when the source was compiled. The functions are pure.
namespace dictionary {

/// The book that a line was taken from, as its tag tells.
enum class Book { kAny, kMedicine, kChemistry };

/// A text that the source has in place of `meant`: a substitute, with the characters beside it
/// where these make its meaning certain.
struct Substitute {
  std::u16string_view written;
  std::u16string_view meant;
  Book book = Book::kAny;  ///< in which it means that
};

/// Returns the substitutes whose meaning is known (substitute_table.cpp). Of several that a text
/// begins with, the first one counts.
std::span<const Substitute> substitutes();

/// Returns the line with those Han characters restored for which the source has a substitute (a
/// Cyrillic letter, a box drawing or private-use character, a vowel with a tone mark) and whose
/// meaning is certain. What a substitute means may depend on the line's tag: "[医]" and "[化]" come
/// from books with tables of their own. Cyrillic letters next to another one are unchanged: they
/// belong to a Cyrillic word.
std::u16string restoreSubstitutes(std::u16string_view line);

}  // namespace dictionary
