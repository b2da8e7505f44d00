#include "dictionary/translation/names.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

#include "dictionary/source/characters.h"
#include "dictionary/translation/brackets.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

/// Phrases that begin an explanation right after a name.
constexpr std::array kExplanations = {
    u"来源于"sv,   u"取自"sv,   u"绰号"sv,     u"地貌名称"sv,   u"盖尔语"sv, u"威尔士语"sv,
    u"的变体"sv,   u"的昵称"sv, u"的异体"sv,   u"的英语形式"sv, u"英语化"sv, u"涵义"sv,
    u"含义"sv,     u"源自"sv,   u"爱尔兰语"sv, u"同"sv,         u"可能"sv,   u"爱称"sv,
    u"缩写形式"sv, u"职业"sv,   u"住所"sv,     u"新娘"sv,
};

/// Endings of notes that mark a piece as the name of a person.
constexpr std::array kPersonNotes = {u"人名"sv,   u"姓氏"sv, u"姓"sv,   u"男子名"sv,
                                     u"女子名"sv, u"男名"sv, u"女名"sv, u"教名"sv};

/// A word that announces names of one subject.
struct Announcement {
  std::u16string_view word;
  Subject subject;
};
constexpr std::array kAnnouncements = {Announcement{u"人名", Subject::kPerson},
                                       Announcement{u"姓氏", Subject::kPerson},
                                       Announcement{u"地名", Subject::kPlace}};
/// In characters: a longer note that ends like that describes something else.
constexpr std::size_t kMaxPlaceNote = 12;

/// A note may contain more before it: "（英国姓氏）".
bool endsLikePerson(std::u16string_view note) {
  return std::ranges::any_of(kPersonNotes,
                             [&](std::u16string_view end) { return note.ends_with(end); });
}

/// Returns whether an explanation begins at `at`, or the name in its own letters after a blank.
bool endsName(std::u16string_view piece, std::size_t at) {
  const std::u16string_view rest = piece.substr(at);
  const bool ownLetters =
      at > 0 && rest.size() > 1 && rest[0] == u' ' && isHan(piece[at - 1]) && isLatin(rest[1]);
  return ownLetters ||
         std::ranges::any_of(kExplanations, [&](auto phrase) { return rest.starts_with(phrase); });
}

}  // namespace

std::u16string_view leadingName(std::u16string_view piece) {
  for (std::size_t i = 0; i < piece.size(); ++i) {
    const std::size_t close = openingBracket(piece[i]) == Bracket::kNone
                                  ? std::u16string_view::npos
                                  : closingPosition(piece, i);
    if (close != std::u16string_view::npos) {
      i = close;  // a note is taken out as a whole later
    } else if (endsName(piece, i)) {
      return piece.substr(0, i);
    }
  }
  return piece;
}

SubjectSet namedByNote(std::u16string_view piece) {
  SubjectSet subjects = 0;
  for (std::size_t i = 0; i < piece.size(); ++i) {
    if (openingBracket(piece[i]) != Bracket::kRound) continue;
    const std::size_t close = closingPosition(piece, i);
    if (close == std::u16string_view::npos) break;
    const std::u16string_view note = piece.substr(i + 1, close - i - 1);
    if (i > 0 && endsLikePerson(note)) subjects |= setOf(Subject::kPerson);
    if (i > 0 && note.ends_with(u"地名") && note.size() <= kMaxPlaceNote) {
      subjects |= setOf(Subject::kPlace);
    }
    i = close;
  }
  return subjects;
}

SubjectSet announcedNames(std::u16string_view piece, bool beforeList) {
  const std::u16string word = withoutNotes(piece);
  const auto* const found = std::ranges::find(kAnnouncements, word, &Announcement::word);
  if (found == kAnnouncements.end() || !piece.ends_with(word)) return 0;
  // "(Luang)人名": the note spells the name.
  const bool noted = word == u"人名" && piece.size() > word.size();
  return beforeList || noted ? setOf(found->subject) : 0;
}

}  // namespace dictionary
