#include "dictionary/gloss/names/name_tails.h"

#include <algorithm>
#include <string>
#include <vector>

#include "dictionary/gloss/english.h"
#include "dictionary/gloss/names/names.h"
#include "dictionary/gloss/word_list.h"
#include "dictionary/source/characters.h"

namespace dictionary {
namespace {

/// What follows them is no apposition: "the Chinese market, excluding first- and second-tier
/// cities".
constexpr std::u16string_view kRestrictions = u"excluding |except |seen as |";

/// Works that have a title and an author.
constexpr std::u16string_view kWorks =
    u"novel|movie|film|comedy|tragedy|play|opera|poem|story|book|textbook|painting|musical|"
    u"fiction|";

/// Small words inside titles, besides those of other names.
constexpr std::u16string_view kInTitles = u"a|an|in|on|to|with|at|from|";

/// "China, Japan and Korea": a list that a name's gloss ends with.
bool endsInConjunction(const std::vector<std::u16string_view>& parts) {
  const std::u16string_view last = parts.back();
  const bool joined = last.find(u" and ") != std::u16string_view::npos ||
                      last.starts_with(u"and ") || last.find(u" or ") != std::u16string_view::npos;
  return joined && std::ranges::all_of(parts, [](std::u16string_view part) {
           return wordCount(part) <= 3 && (isCapital(part[0]) || part.starts_with(u"and "));
         });
}

/// Returns whether the part ends a list inside a name: capitalised words before and after "and",
/// then the noun that all share, if any: "Lahu and Va autonomous county in Pu'er", "Gansu and
/// Ningxia provinces". "British and Irish scientist" says who somebody is.
bool joinsNames(std::u16string_view part) {
  std::size_t at = 4;
  if (!part.starts_with(u"and ")) {
    const std::u16string_view before = part.substr(0, part.find(u" and "));
    if (before == part || wordCount(before) > 2 || !areCapitalized(before)) return false;
    at = before.size() + 5;
  }
  std::u16string_view rest = part.substr(at);
  if (rest.empty() || !isCapital(rest[0])) return false;
  while (!rest.empty() && isCapital(rest[0])) {
    rest.remove_prefix(std::min(rest.size(), firstWord(rest).size() + 1));
  }
  const std::u16string_view next = firstWord(rest);
  return next.empty() || isListed(u"in|for|autonomous|", next) || isKindOfPlace(next) ||
         next.ends_with(u's');
}

/// Returns the beginning of a name's gloss that is a list of names: "Wei, Jin and North-South
/// dynasties". Empty if there is none. "NASA, National Aeronautics and Space Administration" is
/// not.
std::u16string_view listOfNames(std::u16string_view gloss,
                                const std::vector<std::u16string_view>& parts) {
  const bool initials = parts[0][0] == parts[1][0] && std::ranges::all_of(parts[0], isCapital);
  for (std::size_t i = 1; i < parts.size() && !initials; ++i) {
    const auto size = static_cast<std::size_t>(parts[i].data() + parts[i].size() - gloss.data());
    if (joinsNames(parts[i])) return gloss.substr(0, size);
    if (wordCount(parts[i]) > 2 || !areCapitalized(parts[i])) break;
  }
  return {};
}

/// Returns whether the first part only tells a place in a series of what the second one names:
/// "Year 1, year of the Rat".
bool numbersAYear(const std::vector<std::u16string_view>& parts) {
  const std::u16string_view word = firstWord(parts[0]);
  const std::u16string_view number = parts[0].substr(std::min(parts[0].size(), word.size() + 1));
  return !number.empty() && std::ranges::all_of(number, isDigit) &&
         parts[1].starts_with(lowered(word) + u" of ");
}

/// Returns the size of a text in quotation marks at the beginning, with them, if a comma follows
/// and no other one: "Becks" in "\"Becks\", nickname of David Beckham". 0 if there is none.
std::size_t quotedEnd(std::u16string_view gloss) {
  if (gloss[0] != u'"') return 0;
  const std::size_t close = gloss.find(u'"', 1);
  const bool only = close != std::u16string_view::npos &&
                    gloss.find(u'"', close + 1) == std::u16string_view::npos;
  return only && gloss.substr(close + 1).starts_with(u", ") ? close + 1 : 0;
}

/// "discovered in Zhoukoudian", "administered by Taiwan", "found in Japan"
bool isParticiple(std::u16string_view part) {
  const std::u16string_view word = firstWord(part);
  const std::u16string_view rest = part.substr(std::min(part.size(), word.size() + 1));
  return (word.ends_with(u"ed") || isListed(u"found|built|led|", word)) &&
         isListed(u"in|on|by|at|around|", firstWord(rest));
}

/// "Mt Danxia in Shaoguan": withoutPlaceTail() knows where such a name ends.
bool isLocated(std::u16string_view name) {
  return !findListed(u" in | near | at | on |", [&](std::u16string_view word) {
            return name.find(word) != std::u16string_view::npos;
          }).empty();
}

/// Returns whether the part after a longer name of which some words are small describes it:
/// "General Tso's chicken, a deep-fried dish", "Crown publishing group, Hong Kong", "Karakhan
/// Dynasty of central Asia, 8th-10th century".
bool isDescribed(const std::vector<std::u16string_view>& parts) {
  const std::size_t words = wordCount(parts[0]);
  const bool name = isCapital(parts[0][0]) && mayBeginName(parts[0]) && words > 2 && words < 6;
  if (!name || isLocated(parts[0])) return false;
  const std::u16string_view part = parts[1];
  const bool century =
      isDigit(part[0]) && (part.ends_with(u" century") || part.ends_with(u" centuries"));
  const bool places = std::all_of(parts.begin() + 1, parts.end(), areCapitalized);
  return century || places || isParticiple(part) || part.starts_with(u"a ") ||
         part.starts_with(u"an ") || part.starts_with(u"nickname of ");
}

/// Returns whether the text is the title of a work: "Diary of a Madman".
bool isTitle(std::u16string_view text) {
  if (text.starts_with(u'"')) text.remove_prefix(1);
  if (text.empty() || !isCapital(text[0]) || std::ranges::any_of(text, isDigit)) return false;
  while (!text.empty()) {
    const std::u16string_view word = firstWord(text);
    if (!areNameWords(word) && !isListed(kInTitles, word)) return false;
    text.remove_prefix(std::min(text.size(), word.size() + 1));
  }
  return true;
}

/// "1980 movie about the Cultural Revolution", "novel by Lao She", "a Ming dynasty novel by Wu
/// Cheng'en"
bool namesWork(std::u16string_view part) {
  for (std::size_t count = 0; count < 4 && !part.empty(); ++count) {
    const std::u16string_view word = firstWord(part);
    part.remove_prefix(std::min(part.size(), word.size() + 1));
    if (isListed(kWorks, word)) return part.starts_with(u"by ") || part.starts_with(u"about ");
  }
  return false;
}

}  // namespace

std::u16string_view withoutAuthor(std::u16string_view gloss) {
  const std::size_t at = gloss.find(u" by ");
  if (at != std::u16string_view::npos && at > 0) {
    const std::u16string_view next = firstWord(gloss.substr(at + 4));
    const std::u16string_view title = gloss.substr(0, at);
    const bool author =
        !next.empty() && isCapital(next[0]) && next != lastWord(title) && !title.ends_with(u"ed");
    if (author && isTitle(title)) return title;
  }
  const std::vector<std::u16string_view> parts = partsBetweenCommas(gloss);
  for (std::size_t i = 1; i < parts.size(); ++i) {
    const auto before = static_cast<std::size_t>(parts[i].data() - gloss.data()) - 2;
    // "story of Liu Yi", but "book" is the kind of work itself.
    const bool title = isCapital(gloss[0]) || wordCount(parts[0]) > 1;
    if (title && namesWork(parts[i])) return gloss.substr(0, before);
  }
  return gloss;
}

std::u16string_view withoutNameTail(std::u16string_view gloss) {
  if (const std::size_t end = quotedEnd(gloss); end != 0) return gloss.substr(0, end);
  const std::vector<std::u16string_view> parts = partsBetweenCommas(gloss);
  if (parts.size() == 1 || endsInConjunction(parts)) return gloss;
  if (const std::u16string_view list = listOfNames(gloss, parts); !list.empty() && isName(parts[0]))
    return list;
  const bool noun = !isCapital(gloss[0]) && !gloss.starts_with(u"to ") &&
                    wordCount(parts[0]) <= 2 && wordCount(parts[1]) > 1 && isCapital(parts[1][0]) &&
                    parts[1][1] != u' ' && !beginsClause(gloss);
  if (!listedBeginning(kRestrictions, parts[1]).empty()) return gloss;
  if (numbersAYear(parts)) return parts[1];
  return isName(parts[0]) || noun || isDescribed(parts) ? parts[0] : gloss;
}

}  // namespace dictionary
