// A gloss refers to another word if it begins with a phrase such as "old variant of" and a Chinese
// word comes next. What the phrase means is told by its last words (kPhrases), so that "nonstandard
// simplified variant of" needs no line of its own; a phrase of more than six words is a sentence.

#include "dictionary/gloss/references.h"

#include <algorithm>
#include <array>

#include "dictionary/gloss/english.h"
#include "dictionary/gloss/word_list.h"
#include "dictionary/source/characters.h"
#include "dictionary/source/cleanup.h"
#include "text/characters.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

/// In words, blanks included: "nonstandard simplified variant of " has four.
constexpr std::ptrdiff_t kMaxPhraseBlanks = 6;

/// The phrases of each kind, with the blank before the Chinese word.
constexpr std::u16string_view kUnlike =
    u"cf |cf. |cf idiom |opposite: |opposite of |antonym of |abbr. to |abbreviated to |contrasted "
    u"with |"
    u"distinguished from |pun on |CL:|example: |Example: |";
constexpr std::u16string_view kRelated =
    u"see also |transliterated |also called |also known as |also written as |also written |written "
    u"as |written |"
    u"aka |also |or |";
constexpr std::u16string_view kPart = u"used in |component in |";
constexpr std::u16string_view kSame =
    u"see |way of writing |idiom |variant of |variation of |form of |contraction of |abbr. for "
    u"|abbr. of |"
    u"abbreviation for |abbreviation of |short for |same as |equivalent of |equivalent to |"
    u"equivalent for |equivalent: |used erroneously for |used for |used as |substitute for |"
    u"synonym of |synonymous with |interchangeable with |term for |name for |name of |word for |"
    u"slang for |euphemism for |misspelling of |mistake for |now written |i.e. |";

struct PhraseList {
  std::u16string_view ends;
  ReferenceKind kind;
};
/// In this order, since "see also " ends as "also " does, and "abbr. to " unlike "abbr. for ".
constexpr auto kPhrases = std::to_array<PhraseList>({{kUnlike, ReferenceKind::kNone},
                                                     {kRelated, ReferenceKind::kRelated},
                                                     {kPart, ReferenceKind::kPart},
                                                     {kSame, ReferenceKind::kSame}});

/// Phrases after which a meaning may follow the Chinese word.
constexpr std::u16string_view kVariants = u"variant of |form of |";
/// How a text after the word goes on that is no meaning: "variant of 約翰 preferred by the Church".
constexpr std::u16string_view kContinuations =
    u"and|or|in|of|as|for|used|preferred|generic|esp.|which|one|the|";

/// Words in phrases that mark their own word as one of another age, region or spelling.
constexpr std::u16string_view kUsageWords =
    u"old |ancient |archaic |Japanese |Taiwan |Mandarin |PRC |erroneous|nonstandard |dialect|"
    u"less common |slang |";

/// Words that lack their object where the Chinese word after them is left out.
constexpr std::u16string_view kNeedsObject =
    u"of|for|in|to|as|from|with|by|is|the|a|an|and|or|than|character|characters|radical|like|word|"
    u"called|on|between|written|renamed|named|before|after|using|verb|use|component|not|see|cf|"
    u"title|term|at|formally|modern|story|rectify|include|including|into|used|usually|formerly|"
    u"appears|besiege|namely|";

/// Words that begin a clause.
constexpr std::u16string_view kRelatives = u"who|which|that|where|whose|when|";

/// Returns whether `unit` may be part of a Chinese word in a gloss: also characters beyond U+FFFF,
/// radicals, kana, Bopomofo and Hangul, in which glosses give origins.
bool isChineseUnit(char16_t unit) {
  return text::isHan(unit) || text::isHighSurrogate(unit) || text::isLowSurrogate(unit) ||
         (unit >= 0x2E80 && unit <= 0x2FDF) || (unit >= 0x3021 && unit <= 0x312F) ||
         (unit >= 0xAC00 && unit <= 0xD7AF);
}

std::size_t firstChinese(std::u16string_view gloss) {
  const auto* const found = std::ranges::find_if(gloss, isChineseUnit);
  return static_cast<std::size_t>(found - gloss.begin());
}

/// A Chinese word in a gloss: from `begin` to `end`, pinyin included.
struct Span {
  std::size_t begin = 0;
  std::size_t end = 0;
  std::size_t formsEnd = 0;  ///< where the pinyin begins, if there is any
};

/// The word around the Chinese character at `at`. Letters and digits may be part of it: "3C",
/// "A咖".
Span wordAround(std::u16string_view gloss, std::size_t at) {
  const auto isAttached = [](char16_t unit) { return isAsciiLetter(unit) || isDigit(unit); };
  Span span{at, at, at};
  while (span.begin > 0 && isAttached(gloss[span.begin - 1])) --span.begin;
  while (span.end < gloss.size() &&
         (isChineseUnit(gloss[span.end]) || isAttached(gloss[span.end]) ||
          u"|·，"sv.find(gloss[span.end]) != std::u16string_view::npos)) {
    ++span.end;
  }
  span.formsEnd = span.end;
  if (span.end < gloss.size() && gloss[span.end] == u'[') {
    const std::size_t close = gloss.find(u']', span.end);
    span.end = close == std::u16string_view::npos ? gloss.size() : close + 1;
  }
  return span;
}

/// Removes text in square brackets: pinyin apart from its word, pronunciations of other languages.
std::u16string withoutSquareBrackets(std::u16string_view gloss) {
  std::u16string plain;
  while (!gloss.empty()) {
    const std::size_t open = std::min(gloss.find(u'['), gloss.size());
    plain += gloss.substr(0, open);
    const std::size_t close = gloss.find(u']', open);
    gloss.remove_prefix(close == std::u16string_view::npos ? gloss.size() : close + 1);
  }
  return plain;
}

/// Returns whether the English text before a Chinese word is whole without it.
bool standsAlone(std::u16string_view before) {
  while (before.ends_with(u' ')) before.remove_suffix(1);
  if (before.empty() || !(isAsciiLetter(before.back()) ||
                          u")\"'.,"sv.find(before.back()) != std::u16string_view::npos)) {
    return !before.empty() && isLatin(before.back());
  }
  return !isListed(kNeedsObject, lastWord(before));
}

/// Removes the blank that a deleted word leaves before a comma, or a second comma.
std::u16string withoutLooseMarks(std::u16string_view text) {
  std::u16string result;
  for (const char16_t unit : text) {
    if ((unit == u',' || unit == u';' || unit == u')') && result.ends_with(u' ')) result.pop_back();
    if (unit == u',' && result.ends_with(u',')) continue;
    result += unit;
  }
  return foldBlanks(result);
}

/// Returns whether the phrase refers to a word by its English name first: "see Jiang Ziya 姜子牙".
bool seesName(std::u16string_view before) {
  if (!before.starts_with(u"see ")) return false;
  for (std::u16string_view rest = before.substr(4); !rest.empty();) {
    const std::u16string_view word = firstWord(rest);
    if (word.empty() || word[0] < u'A' || word[0] > u'Z') return false;
    rest.remove_prefix(std::min(rest.size(), word.size() + 1));
  }
  return true;
}

/// The kind of reference that the text before a Chinese word makes; nullopt if it makes none.
std::optional<ReferenceKind> kindOf(std::u16string_view before) {
  const auto* const phrase = std::ranges::find_if(kPhrases, [&](const PhraseList& list) {
    const auto ends = [&](std::u16string_view end) {
      const std::size_t begin = before.size() - std::min(before.size(), end.size());
      return before.ends_with(end) && (begin == 0 || !isAsciiLetter(before[begin - 1]));
    };
    return !findListed(list.ends, ends).empty();
  });
  if (phrase != kPhrases.end()) return phrase->kind;
  return seesName(before) ? std::optional(ReferenceKind::kSame) : std::nullopt;
}

/// The meaning in the text after the Chinese word of a variant; "" if it has none.
std::u16string_view meaningAfter(std::u16string_view before, std::u16string_view after) {
  const auto ends = [&](std::u16string_view phrase) { return before.ends_with(phrase); };
  if (findListed(kVariants, ends).empty()) return {};
  after.remove_prefix(std::min(after.find_first_not_of(u" ,"), after.size()));
  const std::u16string_view word = firstWord(after);
  const bool text = !word.empty() && isAsciiLetter(word[0]) && word.back() != u':';
  const bool plain = firstChinese(after) == after.size();
  return text && plain && !isListed(kContinuations, word) ? after : std::u16string_view();
}

/// The reference to a word without Chinese characters: "see 3C[san1 C]".
std::optional<GlossReference> latinReference(std::u16string_view gloss) {
  const std::size_t open = gloss.find(u'[');
  const bool word = gloss.starts_with(u"see ") && gloss.find(u' ', 4) > open && open > 4;
  if (!word || gloss.back() != u']') return std::nullopt;
  GlossReference reference;
  reference.kind = ReferenceKind::kSame;
  reference.traditional = reference.simplified = gloss.substr(4, open - 4);
  reference.pinyin = gloss.substr(open + 1, gloss.size() - open - 2);
  return reference;
}

}  // namespace

std::optional<GlossReference> findReference(std::u16string_view gloss) {
  const std::size_t at = firstChinese(gloss);
  if (at == gloss.size()) return latinReference(gloss);
  Span span = wordAround(gloss, at);
  const std::u16string_view before = gloss.substr(0, span.begin);
  if (std::ranges::count(before, u' ') > kMaxPhraseBlanks) return std::nullopt;
  const std::optional<ReferenceKind> found = kindOf(before);
  if (!found) return std::nullopt;
  GlossReference reference;
  // "variant of 扒[pa2] in 扒手[pa2 shou3]" has that meaning in one word only.
  const bool part = gloss.substr(span.end).starts_with(u" in ");
  reference.kind = part ? ReferenceKind::kPart : *found;
  if (part && firstChinese(gloss.substr(span.end)) == 4) span = wordAround(gloss, span.end + 4);
  reference.meaning = meaningAfter(before, gloss.substr(span.end));
  const auto contained = [&](std::u16string_view word) {
    return before.find(word) != std::u16string_view::npos;
  };
  reference.usage = !findListed(kUsageWords, contained).empty();
  const std::u16string_view forms = gloss.substr(span.begin, span.formsEnd - span.begin);
  const std::size_t bar = forms.find(u'|');
  reference.traditional = forms.substr(0, bar);
  reference.simplified = bar == std::u16string_view::npos ? forms : forms.substr(bar + 1);
  if (span.end > span.formsEnd + 1) {
    reference.pinyin = gloss.substr(span.formsEnd + 1, span.end - span.formsEnd - 2);
  }
  return reference;
}

bool isAside(std::u16string_view gloss) {
  return gloss.starts_with(u"pr. ") || gloss.find(u" pr. [") != std::u16string_view::npos ||
         gloss.starts_with(u"also pr. ") || gloss.starts_with(u"pronounced ") ||
         gloss.starts_with(u"also pronounced ") || gloss.starts_with(u"CL:") ||
         gloss.starts_with(u"abbr. to ");
}

std::optional<std::u16string> withoutChinese(std::u16string_view gloss) {
  std::u16string plain;
  for (std::size_t at = firstChinese(gloss); at < gloss.size(); at = firstChinese(gloss)) {
    const Span span = wordAround(gloss, at);
    plain += gloss.substr(0, span.begin);
    if (!standsAlone(plain)) {
      // "Zhou the exploiter, character in short story 半夜雞叫": the beginning stands.
      const std::size_t comma = std::min(plain.rfind(u", "), plain.size());
      const std::u16string_view beginning = std::u16string_view(plain).substr(0, comma);
      if (comma == plain.size() || !standsAlone(beginning)) return std::nullopt;
      if (isListed(kRelatives, lastWord(beginning))) return std::nullopt;
      return withoutLooseMarks(withoutSquareBrackets(beginning));
    }
    gloss.remove_prefix(span.end);
  }
  plain += gloss;
  return withoutLooseMarks(withoutSquareBrackets(plain));
}

}  // namespace dictionary
