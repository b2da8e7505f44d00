#include "dictionary/gloss/alternatives.h"

#include <algorithm>

#include "dictionary/gloss/english.h"
#include "dictionary/gloss/names.h"

namespace dictionary {
namespace {

/// The most words that one gloss lists as equivalents.
constexpr std::size_t kMaxEquivalents = 6;

bool isVerb(std::u16string_view gloss) { return gloss.starts_with(u"to "); }

/// Returns the spellings in "Liberman, Lieberman or Liebermann": capitalised names of equally many
/// words, since "CD or DVD Drive" shares its last one. Empty if the gloss is no such list.
std::vector<std::u16string_view> alternativeNames(std::u16string_view gloss) {
  const std::size_t at = gloss.find(u" or ");
  if (at == std::u16string_view::npos) return {};
  std::vector<std::u16string_view> names = partsBetweenCommas(gloss.substr(0, at));
  if (names.back().ends_with(u',')) names.back().remove_suffix(1);
  names.push_back(gloss.substr(at + 4));
  const std::size_t words = wordCount(names[0]);
  const bool alike = std::ranges::all_of(names, [&](std::u16string_view name) {
    return !name.empty() && wordCount(name) == words && areCapitalized(name);
  });
  return alike ? names : std::vector<std::u16string_view>{};
}

}  // namespace

std::vector<std::u16string_view> listedEquivalents(std::u16string_view gloss, bool names) {
  if (std::vector<std::u16string_view> spellings = alternativeNames(gloss); !spellings.empty()) {
    return spellings;
  }
  const bool open = gloss.ends_with(u" etc");
  std::vector<std::u16string_view> parts =
      partsBetweenCommas(open ? gloss.substr(0, gloss.size() - 4) : gloss);
  // "yeah, right!" is one text; seven words are what "red to violet" takes together.
  const bool many = parts.size() > kMaxEquivalents && !names;
  if (parts.size() == 1 || many || isExclamation(parts[0])) return {gloss};
  const auto isWord = [&](std::u16string_view part) {
    const std::u16string_view word = isVerb(part) ? part.substr(3) : part;
    return wordCount(word) == 1 && (names || word == u"I" || !isCapital(word[0]));
  };
  const auto isJoined = [](std::u16string_view part) {
    return part.starts_with(u"and ") || part.starts_with(u"or ") ||
           part.find(u" and ") != std::u16string_view::npos ||
           part.find(u" or ") != std::u16string_view::npos;
  };
  const bool noun = !isCapital(gloss[0]) && std::ranges::none_of(parts, isJoined);
  // "bold, visionary words" is one noun, "sand trap, bunker" are two.
  const bool pair = parts.size() == 2 && wordCount(parts[0]) <= 3 && wordCount(parts[1]) == 1;
  const bool several = parts.size() > 2 && std::ranges::all_of(parts, [](std::u16string_view part) {
                         return wordCount(part) <= 2;
                       });
  const bool synonyms = noun && (pair || several);
  const bool list = std::ranges::all_of(parts, isVerb) || std::ranges::all_of(parts, isWord);
  if (!list && !synonyms) return {gloss};
  return parts;
}

std::vector<std::u16string> namesWithKind(std::u16string_view name) {
  const std::u16string_view kind = lastWord(name);
  const std::size_t at = name.find(u" or ");
  const std::size_t end = name.size() - kind.size();
  if (at == std::u16string_view::npos || at + 4 >= end || !isKindOfPlace(kind)) {
    return {std::u16string(name)};
  }
  const std::u16string_view first = name.substr(0, at);
  const std::u16string_view second = name.substr(at + 4, end - at - 5);
  const bool words = wordCount(first) == 1 && wordCount(second) == 1;
  if (!words || !areCapitalized(first) || !areCapitalized(second)) return {std::u16string(name)};
  std::vector<std::u16string> names;
  for (const std::u16string_view one : {first, second}) {
    names.push_back(std::u16string(one) + u' ' + std::u16string(kind));
  }
  return names;
}

}  // namespace dictionary
