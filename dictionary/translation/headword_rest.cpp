#include "dictionary/translation/headword_rest.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "dictionary/source/characters.h"
#include "dictionary/translation/brackets.h"
#include "dictionary/translation/part_of_speech.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

/// Second words of geographical names; other words with a capital are names that an equivalent may
/// begin with ("Java服务端网页").
constexpr std::array kGeographical = {
    u"Alps"sv,      u"Archipelago"sv, u"Basin"sv,   u"Bay"sv,       u"Canal"sv, u"Cape"sv,
    u"Channel"sv,   u"Cut"sv,         u"Desert"sv,  u"Gulf"sv,      u"Hall"sv,  u"Island"sv,
    u"Islands"sv,   u"Lake"sv,        u"Mount"sv,   u"Mountains"sv, u"Ocean"sv, u"Pass"sv,
    u"Peninsula"sv, u"Plain"sv,       u"Plateau"sv, u"Range"sv,     u"River"sv, u"Sea"sv,
    u"Sound"sv,     u"State"sv,       u"Strait"sv,  u"Street"sv,    u"Woods"sv,
};

/// Characters after a foreign word that refer to it: "shoe 的过去分词".
constexpr std::u16string_view kReferring = u"的之是中与和上指";
/// In letters: a shorter word may be a unit or a formula.
constexpr std::size_t kShortestRest = 3;

std::size_t skipBlanks(std::u16string_view text, std::size_t at) {
  return std::min(text.find_first_not_of(u' ', at), text.size());
}

/// Index after the brackets that follow each other from `at` on, and the blanks after them.
std::size_t skipNotes(std::u16string_view text, std::size_t at) {
  while (at < text.size() && openingBracket(text[at]) != Bracket::kNone) {
    const std::size_t close = closingPosition(text, at);
    if (close == std::u16string_view::npos) return at;
    at = skipBlanks(text, close + 1);
  }
  return at;
}

}  // namespace

std::u16string_view withoutHeadwordRest(std::u16string_view line) {
  const std::size_t begin = skipBlanks(line, line.starts_with(u',') ? 1 : 0);
  const auto* const letters = line.begin() + begin;
  const auto length =
      static_cast<std::size_t>(std::find_if_not(letters, line.end(), isAsciiLetter) - letters);
  const std::size_t end = begin + length;
  if (length < kShortestRest || end == line.size()) return line;
  const std::u16string_view word = line.substr(begin, length);
  const bool geographical = std::ranges::find(kGeographical, word) != kGeographical.end();
  const bool small = std::ranges::all_of(word, [](char16_t unit) { return unit >= u'a'; });
  const bool parted = line[end] == u' ' || openingBracket(line[end]) != Bracket::kNone;
  const std::size_t next = skipNotes(line, skipBlanks(line, end));
  const bool chinese = next < line.size() && isHan(line[next]) &&
                       kReferring.find(line[next]) == std::u16string_view::npos;
  const bool rest = chinese && (geographical || (small && parted));
  if (!rest || partOfSpeechLength(line) > 0) return line;
  return line.substr(skipBlanks(line, end));
}

}  // namespace dictionary
