#include "dictionary/translation/brackets.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "dictionary/source/characters.h"
#include "dictionary/source/cleanup.h"
#include "dictionary/source/markup.h"
#include "dictionary/translation/pieces.h"
#include "text/strings.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

/// Longer ones are explanations.
constexpr std::size_t kMaxOptional = 6;
/// "镇痛药" is a kind of drug, "剂" a part of the word.
constexpr std::size_t kMinKind = 3;

/// Marks of usage, sources and kinds of names.
constexpr std::array kNoteMarks = {u"商"sv, u"拉"sv,   u"美"sv,   u"英"sv,   u"古"sv,
                                   u"日"sv, u"旧名"sv, u"商名"sv, u"人名"sv, u"地名"sv};
constexpr std::array kKindEndings = {u"药"sv, u"剂"sv, u"术语"sv, u"分类"sv};

/// Returns whether the bracketed `content` is a note. `last`: nothing follows it in the piece.
bool isNote(std::u16string_view content, bool last) {
  if (content.empty() || content.size() > kMaxOptional || !std::ranges::all_of(content, isHan)) {
    return true;
  }
  if (std::ranges::find(kNoteMarks, content) != kNoteMarks.end() || content.starts_with(u"产于"))
    return true;
  return last && content.size() >= kMinKind &&
         std::ranges::any_of(kKindEndings, [&](auto end) { return content.ends_with(end); });
}

/// Words at the beginning of a piece that take the next note as their object.
constexpr std::array kGoverning = {u"把"sv, u"将"sv, u"对"sv,   u"给"sv,  u"在"sv, u"向"sv,
                                   u"与"sv, u"为"sv, u"从"sv,   u"由"sv,  u"跟"sv, u"替"sv,
                                   u"就"sv, u"以"sv, u"成为"sv, u"作为"sv};
/// Of these, words that are hardly ever the first character of a term whose second is optional.
constexpr std::u16string_view kPrepositionsOnly = u"把给";
/// Characters of a shorter note are optional ones: "向(创)伤性", "跟(骨)距的".
constexpr std::size_t kShortestObject = 2;
/// Verbs that need no object: "使(某人)高兴" is 使高兴.
constexpr std::u16string_view kCausatives = u"使令让";

/// Characters after which an object must follow: "将(遗产等)传给(后人)".
constexpr std::u16string_view kOpenEnds = u"给向于在的与为成到";
/// Characters of the longest placeholder: 某人或某事物的.
constexpr std::size_t kLongestPlaceholder = 7;

/// A note in round brackets, from its opening bracket to the one that closes it.
struct Note {
  std::size_t open;
  std::size_t close;
  std::u16string_view content;
  bool beforeHan;  ///< whether Chinese text follows
};

/// Reads the note at `open`; its `close` is npos if there is none.
Note noteAt(std::u16string_view text, std::size_t open) {
  Note note{open, std::u16string_view::npos, {}, false};
  if (openingBracket(text[open]) != Bracket::kRound) return note;
  note.close = closingPosition(text, open);
  if (note.close == std::u16string_view::npos) return note;
  note.content = text::trimBlanks(text.substr(open + 1, note.close - open - 1));
  const std::u16string_view rest = text::trimBlanks(text.substr(note.close + 1));
  note.beforeHan = !rest.empty() && isHan(rest[0]);
  return note;
}

bool isPlaceholder(std::u16string_view content) {
  return content.size() <= kLongestPlaceholder && std::ranges::all_of(content, isHan) &&
         (content.starts_with(u'某') || content.starts_with(u"他人"));
}

/// Returns whether the placeholder `note` belongs to the sentence around it.
bool isNeeded(std::u16string_view text, const Note& note) {
  if (!note.beforeHan || note.open == 0 || !isHan(text[note.open - 1])) return false;
  return note.open > 1 || kCausatives.find(text[0]) == std::u16string_view::npos;
}

/// Returns whether `note` is the object of the words before it, which begin the piece.
bool isObject(std::u16string_view text, const Note& note) {
  const std::u16string_view before = text::trimBlanks(text.substr(0, note.open));
  if (!note.beforeHan || std::ranges::find(kGoverning, before) == kGoverning.end()) return false;
  return note.content.size() >= kShortestObject ||
         kPrepositionsOnly.find(before[0]) != std::u16string_view::npos;
}

/// Returns whether `note` has what follows it: "记入（账户）的借方". An alternative to the word
/// before it does not count: "伸长脖子看（或听）的人".
bool hasThing(std::u16string_view text, const Note& note) {
  const std::u16string_view rest = text::trimBlanks(text.substr(note.close + 1));
  const bool alternative = !note.content.empty() && note.content[0] == u'或';
  return note.open > 0 && isHan(text[note.open - 1]) && !alternative && rest.size() > 1 &&
         rest[0] == u'的' && isHan(rest[1]);
}

/// Returns whether something must follow `text`.
bool endsOpen(std::u16string_view text) {
  text = text::trimBlanks(text);
  if (text.ends_with(u')') || text.ends_with(u'）')) text.remove_suffix(1);
  return !text.empty() && kOpenEnds.find(text.back()) != std::u16string_view::npos;
}

template <typename Visitor>
void forEachNote(std::u16string_view text, Visitor visit) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const Note note = noteAt(text, i);
    if (note.close == std::u16string_view::npos) continue;
    visit(note);
    i = note.close;
  }
}

/// A note without the blanks inside its brackets; "" if it contains forbidden characters.
std::u16string cleanNote(std::u16string_view note) {
  if (std::ranges::any_of(note, isForbidden)) return {};
  std::u16string clean(note);
  if (clean.size() > 2 && clean[1] == u' ') clean.erase(1, 1);
  if (clean.size() > 2 && clean[clean.size() - 2] == u' ') clean.erase(clean.size() - 2, 1);
  return clean;
}

}  // namespace

std::u16string withOptionalCharacters(std::u16string_view text) {
  std::u16string full;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t close = openingBracket(text[i]) == Bracket::kNone ? std::u16string_view::npos
                                                                        : closingPosition(text, i);
    if (close == std::u16string_view::npos) {
      full += text[i];
      continue;
    }
    const std::u16string_view content = text.substr(i + 1, close - i - 1);
    const bool plain = text[i] == u'[' || text[i] == u'［';  // others enclose labels: 〔后缀〕
    const bool optional = plain && !isNote(content, close + 1 == text.size());
    full += optional ? content : text.substr(i, close + 1 - i);
    i = close;
  }
  return full;
}

std::u16string withVerbObjects(std::u16string_view piece) {
  std::u16string result;
  std::size_t copied = 0;
  forEachNote(piece, [&](const Note& note) {
    if (isPlaceholder(note.content) || !hasThing(piece, note)) return;
    result += piece.substr(copied, note.open - copied);
    result += u'…';
    copied = note.close + 1;
  });
  result += piece.substr(copied);
  return result;
}

std::u16string withObjects(std::u16string_view piece) {
  bool needed = false;
  forEachNote(piece, [&](const Note& note) {
    needed = needed || (isPlaceholder(note.content) && isNeeded(piece, note));
  });
  std::u16string result;
  std::size_t copied = 0;
  forEachNote(piece, [&](const Note& note) {
    const bool placeholder = needed && isPlaceholder(note.content);
    const bool last = note.close + 1 == piece.size();
    const bool lastObject = copied > 0 && last && endsOpen(piece.substr(0, note.open));
    if (!placeholder && !lastObject && !isObject(piece, note)) return;
    result += piece.substr(copied, note.open - copied);
    result += placeholder ? note.content : u"…"sv;
    copied = note.close + 1;
  });
  result += piece.substr(copied);
  return result;
}

std::u16string notedText(std::u16string_view piece) {
  std::u16string noted;
  for (std::size_t i = 0; i < piece.size(); ++i) {
    const std::size_t close = openingBracket(piece[i]) == Bracket::kNone
                                  ? std::u16string_view::npos
                                  : closingPosition(piece, i);
    if (close == std::u16string_view::npos) {
      // "布鲁姆（地名））"
      const bool tooMany = i > 0 && i + 1 == piece.size() && piece[i] == piece[i - 1] &&
                           closingBracket(piece[i]) != Bracket::kNone;
      if (piece[i] != u'\\' && !tooMany) noted += piece[i];
      continue;
    }
    noted += cleanNote(piece.substr(i, close + 1 - i));
    i = close;
  }
  const std::u16string plain = withoutNotes(noted);
  if (!isIntact(plain) || hasLostCharacterMark(plain) || hasMarkup(noted)) return {};
  return foldBlanks(noted);
}

}  // namespace dictionary
