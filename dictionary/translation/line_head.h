#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "dictionary/translation/subjects.h"

namespace dictionary {

/// What precedes the Chinese text of a line or piece.
struct LineHead {
  std::size_t length = 0;     ///< of the whole head, including the blanks after it
  SubjectSet subjects = 0;    ///< of its subject tags
  std::u16string notes;       ///< its other bracketed notes, unchanged
  bool abbreviation = false;  ///< whether it says that the word is an abbreviation
};

/// Reads part-of-speech marks, subject tags and notes at the beginning of `text`, in any order and
/// number. If `shortTags` is false, tags of one character count as notes: medical lines enclose
/// optional characters in the same brackets.
LineHead readHead(std::u16string_view text, bool shortTags);

}  // namespace dictionary
