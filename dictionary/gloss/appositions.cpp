#include "dictionary/gloss/appositions.h"

#include <algorithm>

#include "dictionary/gloss/english.h"
#include "dictionary/gloss/names/name_tails.h"
#include "dictionary/gloss/names/names.h"
#include "dictionary/gloss/names/places.h"
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
    u", for example | also known as | also called | aka | a.k.a. |, orig. |, originally |, from |, "
    u"containing |"
    u", corresponding to |, meaning |, lit. |, cf |, currency |, genus |, trademark|, occurring |"
    u", renowned |, famous |, esp |, viz. |, reigned |, nowadays |";

/// Examples follow: the text before is an equivalent if it is a noun of two words or more.
constexpr std::u16string_view kExamples = u" such as |";

/// They may also continue a sentence: what comes before them has at most two words and is no verb.
constexpr std::u16string_view kArticles = u", a |, an |, the |";

/// A text does not end with them.
constexpr std::u16string_view kOpenWords = u"in|of|on|near|at|between|under|from|before|";

bool isVerb(std::u16string_view gloss) { return gloss.starts_with(u"to "); }

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
  const bool clause = isVerb(head) || beginsClause(head);
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
  if (wordCount(named) > 1 && !beginsClause(named)) gloss = named;
  return withoutArticleTail(gloss, phrase);
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
  if (endsAsSentence(gloss)) return gloss;
  gloss = withoutMarked(gloss, phrase);
  gloss = withoutAuthor(gloss);
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
