// The stages, from the outside in:
// 1. A line's head is read: part-of-speech marks, subject tags, notes (readHead).
// 2. The rest is divided into pieces at separators outside brackets (pieces.h). A piece may have a
//    head of its own.
// 3. Of each piece two texts are made: a Chinese headword for the general dictionary
//    (equivalent.h), and the text with its notes for a subject dictionary (notedText).
// Names are a case of their own: the source announces them in a piece ("人名") or explains them in
// the pieces that follow, so that the meaning of a piece depends on those before it (LineParser).

#include "dictionary/translation/line.h"

#include <algorithm>
#include <utility>

#include "dictionary/source/characters.h"
#include "dictionary/translation/brackets.h"
#include "dictionary/translation/explanations.h"
#include "dictionary/translation/foreign_words.h"
#include "dictionary/translation/names.h"
#include "dictionary/translation/pieces.h"
#include "text/strings.h"

namespace dictionary {
namespace {

/// Subjects after whose tag a line uses one-character brackets for optional characters, not for
/// further tags.
constexpr SubjectSet kNoShortTagsAfter = setOf(Subject::kMedicine) | setOf(Subject::kComputing);

/// A tag of two meanings: readHead() tells them apart.
constexpr std::u16string_view kPrintingOrIndian = u"印";

/// Subjects whose lines do so in their pieces as well.
constexpr SubjectSet kLongTagsOnly = setOf(Subject::kMedicine);

/// Parses one line. The members are the state that carries over from one piece to the next.
class LineParser {
 public:
  explicit LineParser(std::u16string_view line)
      : line_(line),
        head_(readHead(line, true, false)),
        current_(head_.subjects),
        slang_(marksSlang(head_.notes)) {}

  std::vector<Piece> pieces();
  /// The parts of speech of the line's head.
  [[nodiscard]] PartOfSpeechSet parts() const { return head_.parts; }

  /// Whether the line ends with the description of a command. After pieces().
  [[nodiscard]] bool endsInCommand() const { return command_; }

 private:
  /// `next` is the separator after the piece, 0 for the last.
  void addPiece(const RawPiece& raw, char16_t next);
  /// Sets the equivalent and the short form of a piece, which has the text `text`, and `noted` with
  /// its optional characters.
  void setEquivalents(Piece& piece, std::u16string_view text, std::u16string_view noted,
                      bool introduced);
  [[nodiscard]] bool hasOptionalCharacters() const {
    return (head_.subjects & kLongTagsOnly) != 0 && !head_.marked;
  }
  [[nodiscard]] Equivalent equivalentOf(std::u16string_view text, SubjectSet subjects,
                                        bool introduced);

  std::u16string_view line_;
  LineHead head_;
  SubjectSet current_;       ///< subjects of pieces without a tag of their own
  bool slang_;               ///< whether pieces without a note of their own are slang
  bool explaining_ = false;  ///< whether an explanation began since the last semicolon
  bool command_ = false;     ///< whether the description of a command did
  bool life_ = false;        ///< whether the rest of the line tells a person's life
  std::vector<Piece> pieces_;
};

/// The piece as a headword. After an explanation began, pieces up to the next semicolon continue
/// it. `introduced`: the piece has a tag or note of its own, or begins the line.
Equivalent LineParser::equivalentOf(std::u16string_view text, SubjectSet subjects,
                                    bool introduced) {
  const std::size_t life = pieces_.empty() ? std::u16string_view::npos : lifePosition(text);
  const bool firstName = life != std::u16string_view::npos;
  // The bracket before a life often does not close.
  life_ = life_ || (firstName && closingPosition(text, life) == std::u16string_view::npos);
  const std::u16string_view name = nameBeforeYears(text);
  const bool withYears = !name.empty();
  if (firstName || life_ || explainsName(text) || (explaining_ && !withYears)) {
    return {{}, PieceFault::kExplanation, {}};
  }
  if (withYears) {
    explaining_ = true;
    return makeEquivalent(name, false);
  }
  const Explained explained = splitExplanation(text);
  explaining_ = explained.explains;
  if ((subjects & kNameSubjects) == 0) {
    const bool verb = head_.parts == setOf(PartOfSpeech::kVerb);
    return verb ? makeEquivalent(withVerbObjects(explained.word), false)
                : makeEquivalent(explained.word, head_.abbreviation);
  }
  // After a tagged name, a piece without a tag or note of its own explains where the name is from.
  const bool isName = introduced || (head_.subjects & kNameSubjects) == 0;
  if (!isName) return {{}, PieceFault::kExplanation, {}};
  return makeEquivalent(leadingName(explained.word), false);
}

void LineParser::setEquivalents(Piece& piece, std::u16string_view text, std::u16string_view noted,
                                bool introduced) {
  const std::u16string plain = withoutNotes(text);
  const std::u16string full = withoutNotes(noted);
  piece.equivalent = equivalentOf(full == plain ? text : noted, piece.subjects, introduced);
  if (full == plain || piece.equivalent.fault == PieceFault::kExplanation) return;
  Equivalent shortened = makeEquivalent(splitExplanation(text).word, head_.abbreviation);
  if (piece.equivalent.fault == PieceFault::kNone) {
    piece.shortForm = std::move(shortened.word);
  } else {
    piece.equivalent = std::move(shortened);
  }
}

void LineParser::addPiece(const RawPiece& raw, char16_t next) {
  // The first piece has the head of the line, which pieces() has cut off already.
  const bool first = raw.separator == 0;
  const LineHead head =
      first ? head_ : readHead(raw.text, (head_.subjects & kLongTagsOnly) == 0, head_.marked);
  const std::u16string_view text = first ? raw.text : raw.text.substr(head.length);
  std::u16string noted = head.notes + std::u16string(text);
  // A piece that only announces names sets the subject of those after it and is not kept: before a
  // semicolon, or as a line of its own without a head. With a head ("n. 人名") it is an equivalent.
  const bool wholeLine = first && next == u'\0' && head_.length == 0;
  if (const SubjectSet names = announcedNames(noted, wholeLine || next == u'；'); names != 0) {
    current_ |= names;
    return;
  }
  // A semicolon ends an explanation; a tag of names replaces the line's subjects for the pieces
  // after it too; in a list of places, every item is one.
  if (raw.separator == u'；') explaining_ = command_ = false;
  if ((head.subjects & kNameSubjects) != 0) current_ = head.subjects;
  // A mark of usage holds up to the next semicolon, or for the line if it is at its head.
  if (raw.separator == u'；') slang_ = marksSlang(head_.notes);
  if (marksSlang(head.notes)) slang_ = true;
  const SubjectSet named = namedByNote(text);
  const bool listedPlace = current_ == setOf(Subject::kPlace) && raw.separator == u'、';
  const bool introduced = first || head.subjects != 0 || named != 0 || listedPlace;

  // What a command does is no meaning of the word, not even for a subject dictionary.
  command_ = command_ || describesCommand(text);
  if (command_) return;

  Piece piece;
  piece.separator = pieces_.empty() ? u'\0' : raw.separator;
  piece.subjects = (head.subjects != 0 ? head.subjects : current_) | named;
  if (hasOptionalCharacters()) noted = withOptionalCharacters(noted);
  piece.slang = slang_;
  piece.noted = notedText(noted);
  const std::u16string_view quoted = quotedMeaning(text);
  if (quoted.empty()) setEquivalents(piece, text, noted, introduced);
  // The first of several equivalents in one quotation carries the text for a subject dictionary.
  for (const RawPiece& part : splitPieces(quoted, Colons::kExplain)) {
    piece.equivalent = makeEquivalent(part.text, false);
    pieces_.push_back(piece);
    piece.noted.clear();
  }
  if (quoted.empty()) pieces_.push_back(std::move(piece));
}

std::vector<Piece> LineParser::pieces() {
  const bool law = (head_.subjects & setOf(Subject::kLaw)) != 0;
  const std::vector<RawPiece> raws =
      splitPieces(line_.substr(head_.length), law ? Colons::kAreCommas : Colons::kExplain);
  for (std::size_t i = 0; i < raws.size(); ++i) {
    addPiece(raws[i], i + 1 < raws.size() ? raws[i + 1].separator : u'\0');
  }
  return std::move(pieces_);
}

}  // namespace

LineHead readHead(std::u16string_view text, bool shortTags, bool marked) {
  LineHead head;
  head.marked = marked;
  std::size_t position = 0;
  bool afterNote = false;
  for (;;) {
    while (position < text.size() && text[position] == u' ') ++position;
    head.length = position;
    if (position == text.size()) return head;
    const std::u16string_view rest = text.substr(position);
    const std::size_t skipped = std::max(partOfSpeechLength(rest), strayLength(rest, afterNote));
    if (skipped > 0) {
      position += skipped;
      const bool abbreviation = rest.starts_with(u"abbr");
      head.abbreviation = head.abbreviation || abbreviation;
      head.marked = head.marked || !abbreviation;
      head.parts =
          static_cast<PartOfSpeechSet>(head.parts | partsOfSpeechIn(rest.substr(0, skipped)));
      continue;
    }
    const Bracket kind = openingBracket(text[position]);
    if (kind == Bracket::kNone) return head;
    const std::size_t close = closingPosition(text, position);
    if (close == std::u16string_view::npos) return head;

    // Square brackets enclose both tags and notes: what is not a known tag is a note.
    const std::u16string_view tag =
        text::trimBlanks(text.substr(position + 1, close - position - 1));
    const bool mayBeTag = kind == Bracket::kSquare && (shortTags || tag.size() > 1) &&
                          (tag.size() > 1 || (head.subjects & kNoShortTagsAfter) == 0) &&
                          (head.marked || tag != kPrintingOrIndian);
    const SubjectSet subjects = mayBeTag ? subjectsOfTag(tag) : 0;
    if (subjects == 0) head.notes += text.substr(position, close + 1 - position);
    head.subjects |= subjects;
    position = close + 1;
    afterNote = true;
  }
}

TranslationLine parseLine(std::u16string_view line) {
  LineParser parser(withoutHeadwordRest(line));
  std::vector<Piece> pieces = parser.pieces();
  return {std::move(pieces), parser.parts(), inflectionNote(line), parser.endsInCommand()};
}

std::u16string subjectText(const TranslationLine& line, Subject subject) {
  std::u16string text;
  const Piece* last = nullptr;
  for (const Piece& piece : line.pieces) {
    if ((piece.subjects & setOf(subject)) == 0 || piece.noted.empty()) continue;
    // Pieces lie side by side in the vector: `last + 1` is the next one of the line.
    if (last != nullptr) text += last + 1 == &piece ? piece.separator : u'；';
    text += piece.noted;
    last = &piece;
  }
  return std::ranges::any_of(text, isHan) ? text : std::u16string();
}

}  // namespace dictionary
