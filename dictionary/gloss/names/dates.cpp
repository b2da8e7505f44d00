#include "dictionary/gloss/names/dates.h"

#include <algorithm>

#include "dictionary/gloss/english.h"
#include "dictionary/gloss/names/names.h"
#include "dictionary/gloss/word_list.h"
#include "dictionary/source/characters.h"

namespace dictionary {
namespace {

/// A text does not end with them.
constexpr std::u16string_view kOpenWords = u"in|of|on|near|at|between|under|from|before|reigned|";
/// The date is then that of an event in a description: "four principles enunciated by".
constexpr std::u16string_view kDescribing = u" that | who | which | by | from |";
constexpr std::u16string_view kMonths =
    u"January|February|March|April|May|June|July|August|September|October|November|December|Jan|"
    u"Feb|Mar|Apr|Jun|Jul|Aug|Sep|Sept|Oct|Nov|Dec|";
/// The first year whose date no number of another meaning looks like, and the first one that may be
/// part of a name again: "Made in China 2025".
constexpr std::u16string_view kFirstYear = u"1000";
constexpr std::u16string_view kYearInNames = u"1950";

bool isNumber(std::u16string_view text) {
  return !text.empty() && std::ranges::all_of(text, isDigit);
}

/// "7th", "28th", "1", but not "th"
bool isDay(std::u16string_view word) {
  const std::size_t digits = std::min(word.find_first_not_of(u"0123456789"), word.size());
  const std::u16string_view ending = word.substr(digits);
  return digits > 0 && digits < 3 && (ending.empty() || isListed(u"st|nd|rd|th|", ending));
}

/// "July", "October-December"
bool isMonth(std::u16string_view word) {
  const std::size_t dash = std::min(word.find(u'-'), word.size());
  const bool both = dash == word.size() || isListed(kMonths, word.substr(dash + 1));
  return both && isListed(kMonths, word.substr(0, dash));
}

std::u16string_view withoutLastWord(std::u16string_view text) {
  const std::size_t size = lastWord(text).size() + 1;
  return text.substr(0, text.size() - std::min(text.size(), size));
}

std::u16string_view withoutEra(std::u16string_view text) {
  const bool era = text.ends_with(u" BC") || text.ends_with(u" AD");
  return text.substr(0, text.size() - (era ? 3 : 0));
}

/// Removes the preposition before what was cut: "Li Ji Rebellion in", with the part between commas
/// that it ends: "Three Anti campaign, early PRC purge of".
std::u16string_view withoutOpenEnd(std::u16string_view gloss) {
  const std::u16string_view finalWord = lastWord(gloss);
  if (!isListed(kOpenWords, finalWord) || finalWord.size() == gloss.size()) return gloss;
  const std::size_t comma = gloss.rfind(u", ");
  return gloss.substr(
      0, comma == 0 ? gloss.size() : std::min(comma, gloss.size() - finalWord.size() - 1));
}

/// Returns whether the word is a span of years: "1824-1907", "1911-c.1929"; "25-220" behind a comma
/// only, as it may be a score or a number of pieces.
bool isSpan(std::u16string_view word, bool behindComma) {
  const std::size_t dash = word.find(u'-');
  return word.size() >= (behindComma ? 5 : 7) && isDigit(word[0]) && isDigit(word.back()) &&
         dash != std::u16string_view::npos &&
         word.find_first_not_of(u"0123456789-c.") == std::u16string_view::npos;
}

/// Removes the date of a name that "of", "in" or a comma joins, or a year alone.
std::u16string_view withoutDate(std::u16string_view gloss) {
  const std::u16string_view dated = withoutEra(gloss);
  const std::u16string_view year = lastWord(dated);
  if (!isCapital(gloss[0]) || !isNumber(year) || year.size() < 3 || year.size() > 4) return gloss;
  std::u16string_view name = withoutLastWord(dated);
  if (isMonth(lastWord(name))) {
    name = withoutLastWord(name);
    if (isDay(lastWord(name))) name = withoutLastWord(name);
  }
  const bool late = year.size() == 4 && year >= kFirstYear && year < kYearInNames;
  const std::u16string_view joint = lastWord(name);
  const bool described = !findListed(kDescribing, [&](auto word) {
                            return name.find(word) != std::u16string_view::npos;
                          }).empty();
  if (joint == u"of" || (joint == u"in" && !described)) {
    name = withoutLastWord(name);
  } else if (joint.ends_with(u',') && year.size() == 4 && year >= kFirstYear) {
    name.remove_suffix(1);
    return name;
  } else if (!late || dated.size() < gloss.size() || isListed(kOpenWords, joint)) {
    return gloss;
  }
  return wordCount(name) < 2 || name.empty() ? gloss : name;
}

}  // namespace

std::u16string_view withoutRoughDate(std::u16string_view gloss) {
  std::size_t at = gloss.find(u" coined c. ");
  if (at == std::u16string_view::npos && isCapital(gloss[0])) at = gloss.find(u" c. ");
  if (at == std::u16string_view::npos) return gloss;
  const std::u16string_view before = gloss.substr(0, at);
  if (before.ends_with(u", reigned")) return before.substr(0, before.rfind(u','));
  return isListed(kOpenWords, lastWord(before)) || before.ends_with(u',') ? gloss : before;
}

std::u16string_view withoutYears(std::u16string_view gloss) {
  std::u16string_view rest = withoutEra(gloss);
  const std::u16string_view last = lastWord(rest);
  const std::u16string_view before = withoutLastWord(rest);
  const bool behindComma = before.ends_with(u',') && isCapital(gloss[0]);
  if (before.empty() || !isSpan(last, behindComma)) return withoutDate(gloss);
  if (behindComma) return before.substr(0, before.size() - 1);
  // "1837-1941 and 1945-1997": the first span is part of the text.
  return lastWord(before) == u"and" ? gloss : withoutOpenEnd(before);
}

}  // namespace dictionary
