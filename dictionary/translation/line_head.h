#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "dictionary/translation/subjects.h"

namespace dictionary {

/// What stands in front of the Chinese text of a line or piece.
struct LineHead {
  std::size_t length = 0;     ///< of the whole head, blanks behind it included
  SubjectSet subjects = 0;    ///< of its subject tags
  std::u16string notes;       ///< its other bracketed notes, as they stand
  bool abbreviation = false;  ///< whether it says that the word is an abbreviation
};

/// Reads part-of-speech marks, subject tags and notes at the beginning of `text`. With
/// `shortTags` off, tags of one character are notes: medical lines put characters that may be left
/// out between the same brackets.
LineHead readHead(std::u16string_view text, bool shortTags);

}  // namespace dictionary
