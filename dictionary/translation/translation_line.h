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
  char16_t separator = 0;  ///< ，；、！ before it, 0 for the first
  SubjectSet subjects = 0;
};

/// A parsed line of a translation.
struct TranslationLine {
  std::vector<Piece> pieces;
  /// "apple的复数" if a note says so, otherwise "".
  std::u16string inflection;
};

/// Parses one line as translationLines() gives it: part-of-speech marks, subject tags and notes at
/// its head, then pieces between separators. A subject tag at the head holds for the whole line, a
/// tag of a piece for that piece.
TranslationLine parseLine(std::u16string_view line);

/// The line's text for one subject: its pieces with that subject, notes included, with the
/// separators of the source between pieces that follow each other and semicolons between others.
/// "" if there are none, or if they contain no Han character.
std::u16string subjectText(const TranslationLine& line, Subject subject);

}  // namespace dictionary
