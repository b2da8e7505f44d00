#pragma once

#include <string>
#include <string_view>

#include "dictionary/gloss/note_meanings.h"

/// Taking the bracketed notes off a gloss. The functions are pure.
namespace dictionary {

/// A gloss without its notes.
struct NotedText {
  std::u16string text;
  NoteMeaning meaning;      ///< of all notes together
  std::u16string initials;  ///< a note that abbreviates the text: "WHO"; otherwise ""
  /// The gloss with its notes written out where `text` is no sentence without them; otherwise "".
  std::u16string whole;
  /// Whether `text` is that of a note, beside which there is nothing: "(fine jade)".
  bool described = false;
};

/// Takes the notes in round brackets off a gloss. Text in brackets that belongs to the words around
/// it is kept without its brackets: "(hand)bag", "(in) return", "acting like a (fool)". Brackets of
/// formulas stay: "copper(II)", "Ca(OH)2".
NotedText withoutGlossNotes(std::u16string_view gloss);

}  // namespace dictionary
