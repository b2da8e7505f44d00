#include "dictionary/gloss/appositions.h"

#include <algorithm>

#include "dictionary/gloss/english.h"
#include "dictionary/gloss/names.h"
#include "dictionary/gloss/places.h"
#include "dictionary/gloss/word_list.h"
#include "dictionary/source/characters.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

/// What follows them explains the text before, whatever that is.
constexpr std::u16string_view kMarkers =
    u", i.e. | i.e. |, e.g. | e.g. |, esp. | esp. |, especially |, particularly |, such as |"
    u", including |, namely| namely: |, aka |, also |, usu. |, usually |, typically |"
    u", commonly |, generally |, often |, which |, whose |, who |, where |, used |, said to |"
    u", one of |, unit of |, SI unit |, type of |, kind of |, similar to |, made of |, made from |"
    u", consisting |, located |, name of |, known |, considered |, published |, motto |"
    u", equivalent |, equals |, popular |, as in |, as opposed |, opposite |, see |, same as |"
    u", abbr. |, short for |, now |, formerly |, comprising |, based on |, based in |, slogan |"
    u", for example | also known as | aka |, orig. |, originally |, from |, containing |"
    u", corresponding to |, meaning |, lit. |, cf |, currency |, genus |, trademark|, occurring |"
    u", renowned |, famous |, esp |, viz. |, reigned |, nowadays |";

/// What follows them is no apposition: "the Chinese market, excluding first- and second-tier
/// cities".
constexpr std::u16string_view kRestrictions = u"excluding |except |seen as |";

/// Examples follow: the text before is an equivalent if it is a noun of two words or more.
constexpr std::u16string_view kExamples = u" such as |";

/// They may also continue a sentence: what comes before them has at most two words and is no verb.
constexpr std::u16string_view kArticles = u", a |, an |, the |";

/// What begins with these goes on after a comma: "in literature, the cue for a poem".
constexpr std::u16string_view kClauseBeginnings =
    u"in|at|on|for|by|with|as|when|if|after|before|of|from|once|no|while|since|like|";

/// A text does not end with them.
constexpr std::u16string_view kOpenWords = u"in|of|on|near|at|between|under|from|before|";

bool isVerb(std::u16string_view gloss) { return gloss.starts_with(u"to "); }

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

/// The first place in `gloss` of any item of the list, but not its beginning; its size if none.
std::size_t findMarker(std::u16string_view list, std::u16string_view gloss) {
  std::size_t first = gloss.size();
  forEachListed(
      list, [&](std::u16string_view marker) { first = std::min(first, gloss.find(marker, 1)); });
  return first;
}

/// Cuts a name before its date: "Xia dynasty c. 2000 BC", "scary to think about coined c. 2013".
std::u16string_view withoutDate(std::u16string_view gloss) {
  std::size_t at = gloss.find(u" coined c. ");
  if (at == std::u16string_view::npos && isCapital(gloss[0])) at = gloss.find(u" c. ");
  if (at == std::u16string_view::npos) return gloss;
  const std::u16string_view before = gloss.substr(0, at);
  const std::u16string_view finalWord = lastWord(before);
  return isListed(kOpenWords, finalWord) || before.ends_with(u',') ? gloss : before;
}

/// The place of a colon that an explanation follows; the size of `gloss` if there is none. "Mao:
/// The Unknown Story" is a title, "Han dynasty onwards: whipping" tells a time.
std::size_t findColon(std::u16string_view gloss) {
  const std::size_t at = std::min(gloss.find(u": ", 1), gloss.size());
  const std::u16string_view head = gloss.substr(0, at);
  const bool title = wordCount(head) == 1 && at + 2 < gloss.size() && isCapital(gloss[at + 2]);
  return title || head.ends_with(u" onwards") ? gloss.size() : at;
}

/// The place of a dash that an explanation follows; the size of `gloss` if there is none. A few
/// words without an article go on: "caution - wet floor", "One world - one dream".
std::size_t findDash(std::u16string_view gloss) {
  const std::size_t at = std::min(gloss.find(u" - ", 1), gloss.size());
  const std::u16string_view tail = gloss.substr(std::min(at + 3, gloss.size()));
  const bool goesOn = wordCount(tail) <= 3 && !tail.empty() && tail[0] >= u'a' && tail[0] <= u'z' &&
                      listedBeginning(u"a |an |the |", tail).empty();
  return goesOn ? gloss.size() : at;
}

/// The place of ", capital Nuuk" or ", capital of Greenland"; the size of `gloss` if there is none.
/// "no premises, capital or regular staff" is about money.
std::size_t findCapital(std::u16string_view gloss) {
  constexpr std::u16string_view kMark = u", capital ";
  const std::size_t at = gloss.find(kMark, 1);
  if (at == std::u16string_view::npos) return gloss.size();
  const std::u16string_view next = firstWord(gloss.substr(at + kMark.size()));
  const bool place = !next.empty() && (isCapital(next[0]) || next == u"of" || next == u"city");
  return place ? at : gloss.size();
}

/// A capitalised head is cut in a phrase too: "KMT emblem, a white sun".
std::u16string_view withoutArticleTail(std::u16string_view gloss, bool phrase) {
  const std::u16string_view head = gloss.substr(0, findMarker(kArticles, gloss));
  const bool clause = isVerb(head) || isListed(kClauseBeginnings, firstWord(head));
  if (clause || wordCount(head) > 2 || (phrase && !isCapital(head[0]))) return gloss;
  // "the sun, the moon, and the stars", "the older, the wiser"
  const std::u16string_view tail = gloss.substr(head.size());
  const bool list = tail.find(u", and ") != std::u16string_view::npos;
  const bool comparatives = head.ends_with(u"er") && head.starts_with(u"the ");
  return tail.starts_with(u", the ") && (list || comparatives) ? gloss : head;
}

std::u16string_view withoutMarked(std::u16string_view gloss, bool phrase) {
  gloss = withoutDate(gloss);
  const bool alternates = gloss.starts_with(u"now ");  // "now hot, now cold"
  if (!alternates) gloss = gloss.substr(0, findMarker(kMarkers, gloss));
  gloss = gloss.substr(0, std::min(findColon(gloss), findCapital(gloss)));
  if (!phrase) gloss = gloss.substr(0, findDash(gloss));
  // "sports such as soccer that use large balls" and "With a father such as you" need what follows.
  const std::u16string_view named = gloss.substr(0, findMarker(kExamples, gloss));
  if (wordCount(named) > 1 && !isListed(kClauseBeginnings, lowered(firstWord(named))))
    gloss = named;
  return withoutArticleTail(gloss, phrase);
}

/// Returns whether the first part only tells a place in a series of what the second one names:
/// "Year 1, year of the Rat".
bool numbersAYear(const std::vector<std::u16string_view>& parts) {
  const std::u16string_view word = firstWord(parts[0]);
  const std::u16string_view number = parts[0].substr(std::min(parts[0].size(), word.size() + 1));
  return !number.empty() && std::ranges::all_of(number, isDigit) &&
         parts[1].starts_with(lowered(word) + u" of ");
}

/// Cuts a proper name at its first comma: what follows says where or who it is. A common noun of at
/// most two words is cut before a capital: "triad, Chinese crime gang".
std::u16string_view withoutNameTail(std::u16string_view gloss) {
  const std::vector<std::u16string_view> parts = partsBetweenCommas(gloss);
  if (parts.size() == 1 || endsInConjunction(parts)) return gloss;
  if (const std::u16string_view list = listOfNames(gloss, parts); !list.empty() && isName(parts[0]))
    return list;
  const bool noun = !isCapital(gloss[0]) && !isVerb(gloss) && wordCount(parts[0]) <= 2 &&
                    wordCount(parts[1]) > 1 && isCapital(parts[1][0]) && parts[1][1] != u' ' &&
                    !isListed(kClauseBeginnings, firstWord(gloss));
  if (!listedBeginning(kRestrictions, parts[1]).empty()) return gloss;
  if (numbersAYear(parts)) return parts[1];
  return isName(parts[0]) || noun ? parts[0] : gloss;
}

/// Removes the preposition before what was cut: "Li Ji Rebellion in", with the part between commas
/// that it ends: "Three Anti campaign, early PRC purge of".
std::u16string_view withoutOpenEnd(std::u16string_view gloss) {
  const std::u16string_view last = lastWord(gloss);
  if (!isListed(kOpenWords, last) || last.size() == gloss.size()) return gloss;
  const std::size_t comma = gloss.rfind(u", ");
  return gloss.substr(0,
                      comma == 0 ? gloss.size() : std::min(comma, gloss.size() - last.size() - 1));
}

/// Removes years at the end: "Lord Kelvin 1824-1907", "the First Emperor 259-210 BC".
std::u16string_view withoutYears(std::u16string_view gloss) {
  std::u16string_view rest = gloss;
  if (rest.ends_with(u" BC") || rest.ends_with(u" AD")) rest.remove_suffix(3);
  const std::u16string_view last = lastWord(rest);
  const bool years = last.size() >= 7 && last.size() < rest.size() && isDigit(last[0]) &&
                     isDigit(last.back()) && last.find(u'-') != std::u16string_view::npos &&
                     last.find_first_not_of(u"0123456789-") == std::u16string_view::npos;
  if (!years) return gloss;
  rest.remove_suffix(last.size() + 1);
  // "1837-1941 and 1945-1997": the first span is part of the text.
  return lastWord(rest) == u"and" ? gloss : withoutOpenEnd(rest);
}

}  // namespace

std::u16string_view withoutApposition(std::u16string_view gloss, bool phrase) {
  if (isSentence(gloss)) return gloss;
  gloss = withoutMarked(gloss, phrase);
  if (!phrase) gloss = withoutNameTail(gloss);
  return withoutPlaceTail(withoutYears(gloss));
}

bool describesPlace(std::u16string_view gloss) {
  const std::vector<std::u16string_view> parts = partsBetweenCommas(gloss);
  if (namesKindOfPlace(withoutApposition(gloss, false))) return true;
  if (parts.size() == 1 || !isName(parts[0])) return false;
  std::u16string_view tail = parts[1];
  tail.remove_prefix(listedBeginning(u"a |an |the |", tail).size());
  for (std::size_t count = 0; count < 3 && !tail.empty(); ++count) {
    const std::u16string_view kind = firstWord(tail);
    tail.remove_prefix(std::min(tail.size(), kind.size() + 1));
    const bool located = tail.starts_with(u"in ") || tail.starts_with(u"of ");
    if (located && (isKindOfPlace(kind) || kind == u"capital")) return true;
  }
  return false;
}

}  // namespace dictionary
