// A piece becomes a headword in two steps: headwordText() rewrites it, then findFault() refuses
// what still cannot be a headword. Each rule is a function of its own, and the order matters: notes
// go first, since they may contain anything; quotation marks are paired before dots are trimmed,
// which may be outside or inside them; blanks go last, since they part the foreign words from the
// Chinese ones. Foreign means below U+0100 (isForeign) throughout: English, digits, blanks and
// marks.

#include "dictionary/translation/equivalent.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "dictionary/source/characters.h"
#include "dictionary/translation/brackets.h"
#include "dictionary/translation/foreign_words.h"
#include "dictionary/translation/pieces.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

/// Returns whether the mark at `at` is between numerals: "第1、3人称", "第一、二人称".
bool isBetweenNumerals(std::u16string_view text, std::size_t at) {
  const auto isNumeral = [](char16_t unit) {
    return isDigit(unit) || u"一二三四五六七八九十"sv.find(unit) != std::u16string_view::npos;
  };
  return at > 0 && at + 1 < text.size() && isNumeral(text[at - 1]) && isNumeral(text[at + 1]);
}

/// Narrows every character, replaces three full stops by an ellipsis and folds ellipses to one.
std::u16string narrowed(std::u16string_view text) {
  std::u16string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    char16_t unit = narrow(text[i]);
    if (text.substr(i).starts_with(u"...")) {
      unit = u'…';
      i += 2;
    }
    if (unit == u'、' && isBetweenNumerals(text, i)) unit = u',';
    if (unit == u'…' && result.ends_with(u'…')) continue;
    result += unit;
  }
  return result;
}

bool isOneOf(char16_t unit, std::u16string_view units) {
  return units.find(unit) != std::u16string_view::npos;
}

std::u16string_view trimmed(std::u16string_view text) {
  while (!text.empty() && isOneOf(text.front(), u" …。.:=·,")) text.remove_prefix(1);
  while (!text.empty() && isOneOf(text.back(), u" …。.!?:=·,-/")) text.remove_suffix(1);
  return text;
}

/// Removes a mark that the source has by mistake before the Chinese text: "+体育馆"; of a quotation
/// mark without its counterpart also a letter after it: "\"F带武器的".
std::u16string_view withoutStrayMark(std::u16string_view text) {
  if (text.empty() || !isOneOf(text[0], u"+*`︽\"")) return text;
  const std::size_t marks = std::min(text.find_first_not_of(text[0]), text.size());
  const bool quote = text[0] == u'"';
  if (quote && std::ranges::count(text, u'"') > 1) return text;
  const std::size_t begin =
      quote && marks + 1 < text.size() && isAsciiLetter(text[marks]) ? marks + 1 : marks;
  return begin < text.size() && isHan(text[begin]) ? text.substr(begin) : text;
}

/// Removes the hyphen of a word element ("-皮") and the one that a deleted note leaves at the
/// beginning: "(Z)-丁烯酸", "(Z)-Δ13-廿二碳烯酸".
std::u16string_view withoutHyphen(std::u16string_view text) {
  const bool left = text.size() > 1 && text[0] == u'-' &&
                    (isHan(text[1]) || isDigit(text[1]) || isGreek(text[1]) || text[1] == u' ');
  return left ? text.substr(text[1] == u' ' ? 2 : 1) : text;
}

/// Letters of all alphabets in the source, Greek included, are below it; from U+2000 on there are
/// punctuation marks, symbols and Han characters.
constexpr char16_t kAlphabetsEnd = 0x2000;

/// Removes blanks except those between two foreign words: Chinese is written without blanks.
std::u16string withoutChineseBlanks(std::u16string_view text) {
  std::u16string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool betweenForeign =
        i > 0 && i + 1 < text.size() && text[i - 1] < kAlphabetsEnd && text[i + 1] < kAlphabetsEnd;
    const bool doubled = i + 1 < text.size() && text[i + 1] == u' ';
    if (text[i] != u' ' || (betweenForeign && !doubled)) result += text[i];
  }
  return result;
}

/// The text of a piece as a Chinese headword is written, whether or not it can be one.
std::u16string headwordText(std::u16string_view piece, bool abbreviation) {
  const std::u16string noteless = withoutNotes(withObjects(piece));
  const std::u16string plain = narrowed(
      curled(withoutStrayMark(withoutLooseBracket(noteless, noteless.size() < piece.size()))));
  const std::u16string bare = withoutQuotes(trimmed(plain));
  const std::u16string_view chinese =
      withoutHyphen(withoutTail(withoutExpansion(bare, abbreviation)));
  return withoutChineseBlanks(trimmed(chinese));
}

/// Han characters of the longest Chinese headword; longer pieces are explanations. Foreign letters,
/// digits and marks are not counted: names of compounds and foreign names have many. Named in
/// describe() and in PieceFault.
constexpr std::size_t kMaxHan = 20;
/// Han characters of an explanation that may be the only equivalent of an entry.
constexpr std::size_t kMaxExplanation = 30;
/// Characters of any headword: the windows show some 40 in a line.
constexpr std::size_t kMaxWord = 40;

/// Words that translate nothing by themselves.
constexpr std::array kLabels = {u"人名"sv, u"的"sv,   u"亦作"sv, u"又作"sv,
                                u"略作"sv, u"尤指"sv, u"特指"sv, u"指的是"sv};

/// Characters of headwords: Han, letters, digits, Roman numerals (U+2160 to U+217F), and marks that
/// belong to a word.
bool isAllowed(char16_t unit) {
  constexpr std::u16string_view kMarks = u" -./+&,·…′″°×±～“”《》℃()[]";
  return isHan(unit) || isLatin(unit) || isDigit(unit) || isGreek(unit) ||
         (unit >= 0x2160 && unit <= 0x217F) || kMarks.find(unit) != std::u16string_view::npos;
}

bool hasHan(std::u16string_view text) { return std::ranges::any_of(text, isHan); }

std::size_t hanCount(std::u16string_view text) {
  return static_cast<std::size_t>(std::ranges::count_if(text, isHan));
}

/// Returns whether `word` contains marks whose counterpart was deleted or lost: an unpaired bracket
/// or quotation mark, a range without its beginning, a link without its first part; or is a suffix
/// of English ("-ion").
bool hasLooseEnds(std::u16string_view word) {
  constexpr std::array kPairs = {u"“”"sv, u"《》"sv, u"()"sv, u"[]"sv};
  const bool unbalanced = std::ranges::any_of(kPairs, [&](std::u16string_view pair) {
    return std::ranges::count(word, pair[0]) != std::ranges::count(word, pair[1]);
  });
  const bool suffix = word.size() > 1 && word[0] == u'-' && isLatin(word[1]) &&
                      word.find(u'的') == std::u16string_view::npos;
  const std::size_t range = word.find(u'～');
  const bool looseRange =
      range != std::u16string_view::npos && (range == 0 || !isDigit(word[range - 1]));
  return unbalanced || suffix || looseRange || word.starts_with(u'+') || word.starts_with(u'&') ||
         word.find(u"--") != std::u16string_view::npos;
}

/// What a note or a separator leaves of "ess [esse] 的复数", "by God! 的爱尔兰形式".
constexpr std::array kForms = {u"简写"sv, u"缩写"sv,     u"变形"sv,     u"变体"sv,   u"复数"sv,
                               u"形式"sv, u"过去分词"sv, u"现在分词"sv, u"过去式"sv, u"写法"sv};

/// "见 -ion", "即Ezekiel" and "同“abbreviation”" refer to another entry, "的复数" is what remains
/// after a foreign word is removed, and "dragon lady 的意思是" precedes an explanation.
bool refersElsewhere(std::u16string_view word) {
  const bool sees = word.size() > 1 && word[0] == u'见' && (isLatin(word[1]) || word[1] == u'-');
  const bool same = word.size() > 1 && (word[0] == u'即' || word[0] == u'同') &&
                    std::ranges::all_of(word.substr(1), isForeign);
  const bool quoted = word.size() > 2 && (word[0] == u'见' || word[0] == u'同') &&
                      word[1] == u'“' && isLatin(word[2]) && word.ends_with(u'”');
  const bool elsewhere = sees || same || quoted;
  const bool form = std::ranges::any_of(kForms, [&](auto end) { return word.ends_with(end); });
  const bool meaning = isLatin(word[0]) && word.find(u"的意思是") != std::u16string_view::npos;
  return elsewhere || (form && word.starts_with(u'的')) || meaning;
}

/// What a word that begins with the particle 的 may be: 的确, 的士, the first characters of names.
constexpr std::u16string_view kAfterParticle = u"确士黎里息克卡斯";

/// Removes the particle 的 that a trimmed ellipsis or a deleted note leaves at the beginning:
/// "...的大杂烩", "（汽车等）的前灯".
void removeLeftParticle(std::u16string& word) {
  const bool left = word.size() > 1 && word[0] == u'的' && isHan(word[1]) && word[1] != u'的' &&
                    kAfterParticle.find(word[1]) == std::u16string_view::npos;
  if (left) word.erase(0, 1);
}

/// The first fault that applies, of those that a headword's text shows; kExplanation is given by
/// the line's parser.
PieceFault findFault(std::u16string_view word) {
  if (!hasHan(word)) return PieceFault::kNoHan;
  if (!isIntact(word)) return PieceFault::kLostCharacter;
  if (!std::ranges::all_of(word, isAllowed)) return PieceFault::kPunctuation;
  if (hasLooseEnds(word)) return PieceFault::kPunctuation;
  if (word.size() > kMaxWord || hanCount(word) > kMaxHan) return PieceFault::kTooLong;
  if (refersElsewhere(word) || std::ranges::find(kLabels, word) != kLabels.end()) {
    return PieceFault::kLabel;
  }
  return PieceFault::kNone;
}

}  // namespace

std::string_view describe(PieceFault fault) {
  switch (fault) {
    case PieceFault::kNone:
    case PieceFault::kCount:
      break;
    case PieceFault::kNoHan:
      return "no Han character";
    case PieceFault::kTooLong:
      return "longer than 20 Han characters";
    case PieceFault::kPunctuation:
      return "punctuation left over";
    case PieceFault::kLostCharacter:
      return "a character lost in the source";
    case PieceFault::kLabel:
      return "a label or a bare particle";
    case PieceFault::kExplanation:
      return "explains a name";
  }
  return "nothing wrong";
}

Equivalent makeEquivalent(std::u16string_view piece, bool abbreviation) {
  std::u16string word = headwordText(piece, abbreviation);
  PieceFault fault = findFault(word);
  if (fault != PieceFault::kNoHan && hasLostCharacterMark(withoutNotes(piece))) {
    fault = PieceFault::kLostCharacter;
  }
  if (fault == PieceFault::kNone) {
    removeLeftParticle(word);
    return {std::move(word), fault, {}};
  }
  const bool mayServe =
      fault == PieceFault::kTooLong && word.size() <= kMaxWord && hanCount(word) <= kMaxExplanation;
  if (!mayServe) word.clear();
  return {{}, fault, std::move(word)};
}

std::u16string chineseHeadword(std::u16string_view word) {
  std::u16string narrow = narrowed(word);
  const PieceFault fault = findFault(narrow);
  const bool usable = fault == PieceFault::kNone || fault == PieceFault::kLabel;
  if (!usable || narrow.size() > kMaxHan) narrow.clear();
  return narrow;
}

}  // namespace dictionary
