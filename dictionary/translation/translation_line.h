#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "dictionary/translation/equivalent.h"
#include "dictionary/translation/subjects.h"

namespace dictionary {

/// One of the equivalents that a line of a translation lists.
struct Piece {
  Equivalent equivalent;   ///< as a Chinese headword
  std::u16string noted;    ///< as a subject dictionary shows it, notes included; "" if unusable
  char16_t separator = 0;  ///< what parts it from the piece before, 0 for the first
  SubjectSet subjects = 0;
};

/// A line of a translation, taken apart.
struct TranslationLine {
  std::vector<Piece> pieces;
  /// "apple的复数" where a note says so.
  std::u16string inflection;
};

/// Takes apart one cleaned line: part-of-speech marks, subject tags and notes in front, pieces
/// parted by commas and semicolons outside brackets and quotes.
TranslationLine parseLine(std::u16string_view line);

/// The line's text for one subject: its pieces with that subject, notes included; "" if none.
std::u16string subjectText(const TranslationLine& line, Subject subject);

}  // namespace dictionary
