#pragma once

#include <string_view>

#include "dictionary/translation/subjects.h"

/// What the bracketed notes of glosses say: "(botany)", "(Tw)", "(city in Norway)".
namespace dictionary {

/// What a note says of the text beside it.
struct NoteMeaning {
  SubjectSet subjects = 0;  ///< of the fields that it names
  bool usage = false;       ///< marks a word of a region, an age, a style, or a part of words
  bool label = false;       ///< names a kind of word: "idiom", "onom."; says nothing of its meaning
  bool literal = false;     ///< marks the word-for-word meaning: "lit."
  bool figurative = false;  ///< marks another meaning than that: "fig."; both for "lit. and fig."

  /// Adds what another note of the same text says.
  NoteMeaning& operator|=(const NoteMeaning& other);
};

/// Returns what a note says; nothing of one that belongs to the text, such as an object. `note` is
/// without its brackets. It may name several fields: "computing, math.". The function is pure.
NoteMeaning readNote(std::u16string_view note);

}  // namespace dictionary
