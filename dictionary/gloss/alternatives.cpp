#include "dictionary/gloss/alternatives.h"

#include <algorithm>

#include "dictionary/gloss/english.h"
#include "dictionary/gloss/names/names.h"
#include "dictionary/gloss/word_list.h"
#include "dictionary/source/characters.h"

namespace dictionary {
namespace {

/// The most words that one gloss lists as equivalents.
constexpr std::size_t kMaxEquivalents = 6;

/// Kinds of things that alternative names share, besides those of places.
constexpr std::u16string_view kKinds =
    u"dynasty|university|creek|reservoir|temple|empire|cuisine|ray|drive|bay|nebula|group|range|";
/// At the beginning of names. Alternative names share them.
constexpr std::u16string_view kTitles = u"Cape |Mount |Mt |";
/// Parts of "or so", "or not", "more or less", "sooner or later".
constexpr std::u16string_view kInPhrases = u"so|not|more|later|";
constexpr std::u16string_view kPronouns = u"I|His|Her|Your|Either|Whether|";

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

/// The parts of the text between "or", without the articles before them.
std::vector<std::u16string_view> partsBetweenOr(std::u16string_view text) {
  std::vector<std::u16string_view> parts;
  while (true) {
    const std::u16string_view part = text.substr(0, text.find(u" or "));
    parts.push_back(part.substr(part.starts_with(u"the ") ? 4 : 0));
    if (part.size() == text.size()) return parts;
    text.remove_prefix(part.size() + 4);
  }
}

/// Returns the kind of thing at the end of a name, with the small words before it: "County",
/// "dynasty", "subprefecture level city". Empty if the name does not end with one.
std::u16string_view kindOf(std::u16string_view name) {
  const std::u16string_view last = lastWord(name);
  if (!isKindOfPlace(last) && !isListed(kKinds, lowered(last))) return {};
  std::size_t size = last.size();
  while (size < name.size()) {
    const std::u16string_view word = lastWord(name.substr(0, name.size() - size - 1));
    const bool capital = !word.empty() && isCapital(word[0]) && word != u"Autonomous";
    if (word.empty() || capital || isSmallWordInNames(word)) break;
    size += word.size() + 1;
  }
  return name.substr(name.size() - std::min(size, name.size()));
}

/// Returns whether the text may be one of several names of a thing: capitalised words, and its
/// kind.
bool isAlternative(std::u16string_view text) {
  text.remove_suffix(kindOf(text).size());
  while (text.ends_with(u' ')) text.remove_suffix(1);
  if (text.empty() || !isCapital(text[0]) || isListed(kPronouns, firstWord(text))) return false;
  const bool number = std::ranges::any_of(text, isDigit);  // "Omega or Horseshoe Nebula M17"
  return !number && text.find_first_of(u",\"") == std::u16string_view::npos &&
         text.find(u" and ") == std::u16string_view::npos && areNameWords(text);
}

/// Returns whether one of two names may be short for more words of the other: "History of Song or
/// Liu Song", the first names in "Baruch or Benedict Spinoza", which are short.
bool mayShareMore(std::u16string_view first, std::u16string_view second) {
  if (first.find(u" of ") != std::u16string_view::npos) return true;
  return wordCount(first) == 1 && first.size() < 7 && wordCount(second) == 2 &&
         kindOf(second).empty() && first[0] == second[0] && firstWord(second).size() > 4;
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

std::vector<std::u16string_view> alternativeWords(std::u16string_view gloss) {
  std::vector<std::u16string_view> words = partsBetweenOr(isVerb(gloss) ? gloss.substr(3) : gloss);
  const bool article = words[0].starts_with(u"a ") || words[0].starts_with(u"an ");
  if (article) words[0].remove_prefix(firstWord(words[0]).size() + 1);
  const bool single = std::ranges::all_of(words, [](std::u16string_view word) {
    return wordCount(word) == 1 && !isListed(kInPhrases, word);
  });
  return single && words.size() == 2 ? words : std::vector<std::u16string_view>{gloss};
}

std::vector<std::u16string> namesWithKind(std::u16string_view name) {
  std::vector<std::u16string_view> parts = partsBetweenOr(name);
  std::vector<std::u16string> whole = {std::u16string(name)};
  if (parts.size() < 2) return whole;
  if (!std::ranges::all_of(parts, isAlternative)) {
    // The first one is a name of the place, whatever the other is.
    if (parts[0].empty() || !namesKindOfPlace(parts[0])) return whole;
    return {std::u16string(parts[0])};
  }
  if (mayShareMore(parts[0], parts[1])) return whole;
  const std::u16string_view kind = kindOf(parts.back());
  const std::u16string_view title = listedBeginning(kTitles, parts[0]);
  if (kind.size() == parts.back().size()) return whole;
  const auto hasKind = [](std::u16string_view part) { return !kindOf(part).empty(); };
  const bool shared = std::ranges::none_of(parts.begin(), parts.end() - 1, hasKind);
  std::vector<std::u16string> names;
  for (const std::u16string_view part : parts) {
    std::u16string one(part);
    if (listedBeginning(kTitles, part).empty()) one.insert(0, title);
    if (!kind.empty() && shared && !hasKind(part)) one += u' ' + std::u16string(kind);
    names.push_back(std::move(one));
  }
  return names;
}

}  // namespace dictionary
