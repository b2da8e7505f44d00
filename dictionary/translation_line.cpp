#include "dictionary/translation_line.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "dictionary/brackets.h"
#include "dictionary/characters.h"
#include "dictionary/line_head.h"
#include "dictionary/name_piece.h"
#include "dictionary/pieces.h"
#include "dictionary/source_text.h"

namespace dictionary {
namespace {

/// Lines of this subject mark characters that may be left out with the brackets of tags.
constexpr SubjectSet kLongTagsOnly = setOf(Subject::kMedicine);

/// The piece as a subject dictionary shows it: notes that hold lost characters are left out; ""
/// where such a character stands elsewhere.
std::u16string notedText(std::u16string_view piece) {
  std::u16string noted;
  for (std::size_t i = 0; i < piece.size(); ++i) {
    const std::size_t close = openingBracket(piece[i]) == Bracket::kNone
                                  ? std::u16string_view::npos
                                  : closingPosition(piece, i);
    if (close == std::u16string_view::npos) {
      if (piece[i] != u'\\') noted += piece[i];
      continue;
    }
    const std::u16string_view note = piece.substr(i, close + 1 - i);
    if (std::ranges::none_of(note, isForbidden)) noted += note;
    i = close;
  }
  if (!isIntact(withoutNotes(noted))) return {};
  return foldBlanks(noted);
}

}  // namespace

TranslationLine parseLine(std::u16string_view line) {
  TranslationLine parsed;
  const LineHead lineHead = readHead(line, true);
  const bool shortTags = (lineHead.subjects & kLongTagsOnly) == 0;
  SubjectSet current = lineHead.subjects;
  bool first = true;
  for (const RawPiece& raw : splitPieces(line.substr(lineHead.length))) {
    const LineHead head = first ? lineHead : readHead(raw.text, shortTags);
    const std::u16string_view text = first ? raw.text : raw.text.substr(head.length);
    const bool tagged = first || head.subjects != 0;
    if (announcesNames(std::u16string(head.notes) + std::u16string(text))) {
      current |= setOf(Subject::kPerson);
      first = false;
      continue;
    }
    Piece piece;
    piece.separator = parsed.pieces.empty() ? u'\0' : raw.separator;
    piece.subjects = head.subjects != 0 ? head.subjects : current;
    if ((head.subjects & kNameSubjects) != 0) current = head.subjects;
    piece.subjects |= namedByNote(text);
    piece.noted = notedText(head.notes + std::u16string(text));
    if ((piece.subjects & kNameSubjects) == 0) {
      piece.equivalent = makeEquivalent(text);
    } else if (tagged || (lineHead.subjects & kNameSubjects) == 0) {
      piece.equivalent = makeEquivalent(leadingName(text));
    } else {
      piece.equivalent.fault = PieceFault::kExplanation;
    }
    parsed.pieces.push_back(std::move(piece));
    first = false;
  }
  parsed.inflection = inflectionNote(line);
  return parsed;
}

std::u16string subjectText(const TranslationLine& line, Subject subject) {
  std::u16string text;
  const Piece* last = nullptr;
  for (const Piece& piece : line.pieces) {
    if ((piece.subjects & setOf(subject)) == 0 || piece.noted.empty()) continue;
    if (last != nullptr) text += last + 1 == &piece ? piece.separator : u'；';
    text += piece.noted;
    last = &piece;
  }
  return std::ranges::any_of(text, isHan) ? text : std::u16string();
}

}  // namespace dictionary
