#include "dictionary/gloss/appositions.h"

#include <algorithm>

#include "dictionary/gloss/english.h"
#include "dictionary/gloss/names/dates.h"
#include "dictionary/gloss/names/name_tails.h"
#include "dictionary/gloss/names/names.h"
#include "dictionary/gloss/names/places.h"
#include "dictionary/gloss/names/sites.h"
#include "dictionary/gloss/noun_tails.h"
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

/// The most words of a place and where it is.
constexpr std::size_t kMaxLocatedWords = 4;

bool isVerb(std::u16string_view gloss) { return gloss.starts_with(u"to "); }

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
  const std::u16string_view head = gloss.substr(0, firstPlaceOfListed(kArticles, gloss));
  const bool clause = isVerb(head) || beginsClause(head);
  if (clause || wordCount(head) > 2 || (phrase && !isCapital(head[0]))) return gloss;
  // "the sun, the moon, and the stars", "the older, the wiser"
  const std::u16string_view tail = gloss.substr(head.size());
  const bool list = tail.find(u", and ") != std::u16string_view::npos;
  const bool comparatives = head.ends_with(u"er") && head.starts_with(u"the ");
  return tail.starts_with(u", the ") && (list || comparatives) ? gloss : head;
}

std::u16string_view withoutMarked(std::u16string_view gloss, bool phrase) {
  gloss = withoutRoughDate(gloss);
  const bool alternates = gloss.starts_with(u"now ");  // "now hot, now cold"
  if (!alternates) gloss = gloss.substr(0, firstPlaceOfListed(kMarkers, gloss));
  gloss = gloss.substr(0, std::min(findColon(gloss), findCapital(gloss)));
  if (!phrase) gloss = gloss.substr(0, findDash(gloss));
  // "sports such as soccer that use large balls" and "With a father such as you" need what follows.
  const std::u16string_view named = gloss.substr(0, firstPlaceOfListed(kExamples, gloss));
  if (wordCount(named) > 1 && !beginsClause(named)) gloss = named;
  return withoutArticleTail(gloss, phrase);
}

/// Cuts everything but the place of a name.
std::u16string_view withoutExplanation(std::u16string_view gloss, bool phrase) {
  gloss = withoutMarked(gloss, phrase);
  gloss = withoutAuthor(gloss);
  if (!phrase) gloss = withoutNameTail(withoutNounTail(gloss));
  return withoutYears(gloss);
}

}  // namespace

std::u16string_view withoutApposition(std::u16string_view gloss, bool phrase) {
  if (endsAsSentence(gloss)) return gloss;
  gloss = withoutPlaceTail(withoutExplanation(gloss, phrase));
  return phrase ? gloss : withoutYears(withoutSite(gloss));
}

bool describesPlace(std::u16string_view gloss) {
  const std::u16string_view named =
      endsAsSentence(gloss) ? gloss : withoutExplanation(gloss, false);
  const std::u16string_view site = withoutSite(named);
  if (namesPeople(site)) return false;  // "Li ethnic group of Hainan Province"
  // "Bamay in Dawu County" and "Mt Mengliang in Mengyin county" are places, "Jinan University in
  // Guangdong Province" is none.
  const bool placed = site.size() < named.size() || wordCount(named) <= kMaxLocatedWords;
  if (placed && namesKindOfPlace(named)) return true;
  if (namesKindOfPlace(withoutPlaceTail(named))) return true;
  const std::vector<std::u16string_view> parts = partsBetweenCommas(gloss);
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
