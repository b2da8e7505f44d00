#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/translation/equivalent.h"
#include "dictionary/translation/part_of_speech.h"
#include "dictionary/translation/subjects.h"

/// Parsing a line of a translation, which has a head and pieces. The source's grammar is known from
/// its texts only, so that nothing is an error: what cannot be used has a fault (PieceFault) or is
/// left out. The functions are pure.
namespace dictionary {

/// The marks and notes before the Chinese text of a line or piece.
struct LineHead {
  std::size_t length = 0;     ///< of the whole head, including the blanks after it
  SubjectSet subjects = 0;    ///< of its subject tags
  std::u16string notes;       ///< its other bracketed notes, unchanged
  bool abbreviation = false;  ///< whether it marks the word as an abbreviation
  bool marked = false;        ///< whether it has any other part-of-speech mark
  PartOfSpeechSet parts = 0;  ///< the parts of speech that it names
};

/// Reads part-of-speech marks, subject tags and notes at the beginning of `text`, in any order and
/// number. If `shortTags` is false, tags of one character count as notes: medical lines enclose
/// optional characters in the same brackets ("腹[部]"). `marked`: the line has a part-of-speech
/// mark before `text`. Without one, "[印]" means Indian English ("[印]骑兵"), with one printing
/// ("n. [印] 铝版术").
LineHead readHead(std::u16string_view text, bool shortTags, bool marked);

/// One of the equivalents that a line of a translation lists.
struct Piece {
  Equivalent equivalent;  ///< as a Chinese headword
  /// The Chinese headword without its optional characters; "" if it has none or is unusable.
  std::u16string shortForm;
  std::u16string noted;    ///< as a subject dictionary shows it, notes included; "" if unusable
  char16_t separator = 0;  ///< ，；、！？ before it, 0 for the first
  SubjectSet subjects = 0;
  bool slang = false;  ///< whether a note marks it as slang, dialect, rare or obsolete
};

/// A parsed line of a translation.
struct TranslationLine {
  std::vector<Piece> pieces;
  PartOfSpeechSet parts = 0;  ///< of its head
  /// "apple的复数" if a note says so, otherwise "".
  std::u16string inflection;
  /// Whether its last piece, which is left out, describes a command (describesCommand()).
  bool endsInCommand = false;
};

/// Parses one line as translationLines() returns it: part-of-speech marks, subject tags and notes
/// at its head, then pieces between separators. A subject tag at the head applies to the whole
/// line, a tag of a piece to that piece.
TranslationLine parseLine(std::u16string_view line);

/// Returns the line's text for one subject: its pieces with that subject, notes included, with the
/// separators of the source between pieces that follow each other and semicolons between others.
/// Returns "" if there are none, or if they contain no Han character.
std::u16string subjectText(const TranslationLine& line, Subject subject);

}  // namespace dictionary
