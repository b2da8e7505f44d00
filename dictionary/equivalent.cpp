#include "dictionary/equivalent.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "dictionary/brackets.h"
#include "dictionary/characters.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t kMaxWord = 20;

/// Kinds of words and bare particles: they translate nothing by themselves.
constexpr std::array kLabels = {u"的"sv,   u"地"sv,   u"得"sv,  u"等"sv, u"类"sv,
                                u"之类"sv, u"等等"sv, u"如"sv,  u"即"sv, u"亦作"sv,
                                u"又作"sv, u"同"sv,   u"略作"sv};

char16_t narrow(char16_t unit) {
  if (unit >= 0xFF01 && unit <= 0xFF5D) return static_cast<char16_t>(unit - 0xFEE0);
  switch (unit) {
    case u'\'':
    case u'’':
    case u'‘':
      return u'′';
    case u'•':
    case u'‧':
    case u'・':
      return u'·';
    case u'—':
    case u'–':
    case u'―':
      return u'-';
    case u'º':
      return u'°';
    case u'~':
      return u'～';
    default:
      return unit;
  }
}

/// Narrow forms, with three full stops as an ellipsis and ellipses folded to one.
std::u16string narrowed(std::u16string_view text) {
  std::u16string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    char16_t unit = narrow(text[i]);
    if (text.substr(i).starts_with(u"...")) {
      unit = u'…';
      i += 2;
    }
    if (unit == u'…' && result.ends_with(u'…')) continue;
    result += unit;
  }
  return result;
}

bool isTrimmed(char16_t unit) {
  constexpr std::u16string_view kTrimmed = u" …。.!?:=·,";
  return kTrimmed.find(unit) != std::u16string_view::npos;
}

std::u16string_view trimmed(std::u16string_view text) {
  while (!text.empty() && isTrimmed(text.front())) text.remove_prefix(1);
  while (!text.empty() && (isTrimmed(text.back()) || text.back() == u'-')) text.remove_suffix(1);
  return text;
}

std::u16string_view withoutOuterQuotes(std::u16string_view text) {
  if (!text.empty() && quotationEnd(text, 0) == text.size()) {
    return text.substr(1, text.size() - 2);
  }
  return text;
}

/// Without the words that an abbreviation stands for ("National Gallery 国家美术馆"): at least two
/// foreign words, one of them in small letters, and a blank before the Chinese text.
std::u16string_view withoutExpansion(std::u16string_view text) {
  std::size_t han = 0;
  std::size_t blanks = 0;
  bool small = false;
  for (; han < text.size() && text[han] < 0x100; ++han) {
    if (text[han] == u' ') ++blanks;
    small = small || (text[han] >= u'a' && text[han] <= u'z');
  }
  const bool expansion = han < text.size() && isHan(text[han]) && blanks >= 2 && small &&
                         text[han - 1] == u' ' && isLatin(text[0]);
  return expansion ? text.substr(han) : text;
}

/// Chinese is written without blanks: only those between two foreign words stay.
std::u16string withoutChineseBlanks(std::u16string_view text) {
  std::u16string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool betweenForeign =
        i > 0 && i + 1 < text.size() && text[i - 1] < 0x2000 && text[i + 1] < 0x2000;
    if (text[i] != u' ' || betweenForeign) result += text[i];
  }
  return result;
}

bool isAllowed(char16_t unit) {
  constexpr std::u16string_view kMarks = u" -./+&,·…′″°×±～“”《》℃";
  return isHan(unit) || isLatin(unit) || isDigit(unit) || isGreek(unit) ||
         (unit >= 0x2160 && unit <= 0x217F) || kMarks.find(unit) != std::u16string_view::npos;
}

bool hasHan(std::u16string_view text) { return std::ranges::any_of(text, isHan); }

PieceFault findFault(std::u16string_view word) {
  if (!hasHan(word)) return PieceFault::kNoHan;
  if (!isIntact(word)) return PieceFault::kLostCharacter;
  if (!std::ranges::all_of(word, isAllowed)) return PieceFault::kPunctuation;
  if (std::ranges::count(word, u'“') != std::ranges::count(word, u'”') ||
      std::ranges::count(word, u'《') != std::ranges::count(word, u'》')) {
    return PieceFault::kPunctuation;
  }
  if (word.size() > kMaxWord) return PieceFault::kTooLong;
  if (std::ranges::find(kLabels, word) != kLabels.end()) return PieceFault::kLabel;
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
      return "longer than 20 characters";
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

Equivalent makeEquivalent(std::u16string_view piece) {
  const std::u16string plain = narrowed(withoutNotes(piece));
  const std::u16string_view bare = withoutOuterQuotes(trimmed(plain));
  std::u16string word = withoutChineseBlanks(trimmed(withoutExpansion(bare)));
  const PieceFault fault = findFault(word);
  if (fault != PieceFault::kNone) word.clear();
  return {std::move(word), fault};
}

bool isIntact(std::u16string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (isForbidden(text[i]) || isStandIn(text[i])) return false;
    // An accented letter that stands alone is what is left of a Han character.
    const bool afterLatin = i > 0 && isLatin(text[i - 1]);
    const bool beforeLatin = i + 1 < text.size() && isLatin(text[i + 1]);
    if (isLatin1Letter(text[i]) && !afterLatin && !beforeLatin) return false;
  }
  return true;
}

}  // namespace dictionary
