#include "dictionary/translation/equivalent.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "dictionary/source/characters.h"
#include "dictionary/translation/piece_text.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t kMaxWord = 20;

/// They translate nothing by themselves.
constexpr std::array kLabels = {u"人名"sv, u"的"sv, u"亦作"sv, u"又作"sv, u"略作"sv};

bool isAllowed(char16_t unit) {
  constexpr std::u16string_view kMarks = u" -./+&,·…′″°×±～“”《》℃()[]";
  return isHan(unit) || isLatin(unit) || isDigit(unit) || isGreek(unit) ||
         (unit >= 0x2160 && unit <= 0x217F) || kMarks.find(unit) != std::u16string_view::npos;
}

bool hasHan(std::u16string_view text) { return std::ranges::any_of(text, isHan); }

/// Whether marks are left that belong to something deleted or lost.
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

/// "见 -ion" says where else to look; "的简写" is what is left behind a foreign word.
bool isReference(std::u16string_view word) {
  const bool elsewhere =
      word.size() > 1 && word[0] == u'见' && (isLatin(word[1]) || word[1] == u'-');
  return elsewhere || word == u"的简写" || word == u"的缩写";
}

PieceFault findFault(std::u16string_view word) {
  if (!hasHan(word)) return PieceFault::kNoHan;
  if (!isIntact(word)) return PieceFault::kLostCharacter;
  if (!std::ranges::all_of(word, isAllowed)) return PieceFault::kPunctuation;
  if (hasLooseEnds(word)) return PieceFault::kPunctuation;
  if (word.size() > kMaxWord) return PieceFault::kTooLong;
  if (isReference(word) || std::ranges::find(kLabels, word) != kLabels.end()) {
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

Equivalent makeEquivalent(std::u16string_view piece, bool abbreviation) {
  std::u16string word = headwordText(piece, abbreviation);
  const PieceFault fault = findFault(word);
  if (fault != PieceFault::kNone) word.clear();
  return {std::move(word), fault};
}

bool isIntact(std::u16string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (isForbidden(text[i]) || isSubstitute(text[i])) return false;
    // An accented letter that stands alone is what is left of a Han character.
    const bool afterLatin = i > 0 && isLatin(text[i - 1]);
    const bool beforeLatin = i + 1 < text.size() && isLatin(text[i + 1]);
    if (isLatin1Letter(text[i]) && !afterLatin && !beforeLatin) return false;
  }
  return true;
}

}  // namespace dictionary
