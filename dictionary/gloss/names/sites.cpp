#include "dictionary/gloss/names/sites.h"

#include <algorithm>

#include "dictionary/gloss/english.h"
#include "dictionary/gloss/names/names.h"
#include "dictionary/gloss/word_list.h"

namespace dictionary {
namespace {

constexpr std::u16string_view kMountains = u"Mt |Mount |Lake |";
/// They end such a name, with a capital or without one.
constexpr std::u16string_view kBuilt =
    u"range|chain|gate|dam|basin|valley|plateau|depression|bridge|grassland|grasslands|fort|"
    u"mausoleum|tomb|reserve|shrine|bay|tower|volcano|park|temple|station|palisade|dynasty|";
/// They end it in small letters only: "Human Rights in China" is an organisation.
constexpr std::u16string_view kSmallKinds =
    u"area|neighborhood|borough|sultanate|opera|dialect|group|minority|system|prefecture|state|"
    u"language|kingdom|school|";
/// What follows them is the place.
constexpr std::u16string_view kLocating =
    u"in|over|across|around|along|between|near|at|on|living|spoken|south|north|east|west|southwest|"
    u"southeast|northwest|northeast|";
/// "of" tells the place of these, rather than being part of the name: "Tiantai school of Buddhism".
constexpr std::u16string_view kOfPlaces =
    u"neighborhood|group|minority|state|language|kingdom|plateau|people|area|grasslands|"
    u"borough|sultanate|opera|dynasty|chain|";
constexpr std::u16string_view kPeoples = u" ethnic group| ethnic minority|";
/// They stand before the name of a place: "west India".
constexpr std::u16string_view kDirections =
    u"north|south|east|west|northeast|northwest|southeast|southwest|northwestern|northeastern|"
    u"southwestern|southeastern|northern|southern|eastern|western|central|downtown|";
/// The most words of the kind: "river and dock area".
constexpr std::size_t kMaxKindWords = 4;

std::u16string_view withoutFirstWord(std::u16string_view text) {
  return text.substr(std::min(text.size(), firstWord(text).size() + 1));
}

/// Returns whether the text begins with the name of a place, after a direction or without one.
bool beginsWithPlace(std::u16string_view text) {
  if (isListed(kDirections, firstWord(text))) text = withoutFirstWord(text);
  return !text.empty() && isCapital(text[0]);
}

/// "Mt Tai", "Mt Yulong or Jade dragon"
bool isMountain(std::u16string_view text) {
  const std::u16string_view kind = listedBeginning(kMountains, text);
  return !kind.empty() && text.size() > kind.size() && isCapital(text[kind.size()]) &&
         text.find(u',') == std::u16string_view::npos;
}

/// Returns the text behind the capitalised words at its beginning, of which "or" may join two.
/// `text` if it does not begin with a name: "The bridge", "I was".
std::u16string_view withoutName(std::u16string_view text) {
  if (!isCapital(text[0]) || !mayBeginName(text) || firstWord(text) == u"The") return text;
  for (std::u16string_view rest = text; !rest.empty(); rest = withoutFirstWord(rest)) {
    const bool joined = rest.starts_with(u"or ") && rest.size() > 3 && isCapital(rest[3]);
    if (!joined && !isCapital(rest[0])) return rest;
  }
  return {};
}

/// Returns whether the text is a name and its kind: "Krakatoa island and volcano", "Luding Bridge".
bool isSite(std::u16string_view text) {
  if (text.find(u',') != std::u16string_view::npos || wordCount(text) < 2) return false;
  const std::u16string_view finalWord = lastWord(text);
  const std::u16string_view kind = withoutName(text);
  if (kind.size() == text.size() || wordCount(kind) > kMaxKindWords) return false;
  if (kind.empty()) return isListed(kBuilt, lowered(finalWord));
  const bool words = std::ranges::none_of(kind, isCapital) && !kind.starts_with(u"of ") &&
                     kind.find(u" of ") == std::u16string_view::npos;
  return words && (isListed(kBuilt, finalWord) || isListed(kSmallKinds, finalWord) ||
                   finalWord == u"people");
}

/// Returns whether the text is a treaty or a war, of which "between" tells the parties.
bool hasParties(std::u16string_view text) {
  return (text.starts_with(u"Treaty of ") && areNameWords(text)) ||
         (text.ends_with(u" War") && areCapitalized(text));
}

/// Returns whether the text before the preposition ends there, as what follows is a place.
bool endsBefore(std::u16string_view name, std::u16string_view tail) {
  const std::u16string_view word = firstWord(tail);
  const std::u16string_view place = withoutFirstWord(tail);
  if (isMountain(name)) return isListed(u"in|near|at|on|between|", word);
  if (word == u"between" && hasParties(name)) return beginsWithPlace(place);
  const std::u16string_view kind = lastWord(name);
  // "Zhou Dynasty state of Chu" is the state of that name, "Zhou Dynasty vassal state" any of them.
  if (kind == u"state" && wordCount(name) > 2) return false;
  if (word == u"of") {
    return isListed(kOfPlaces, lowered(kind)) && beginsWithPlace(place) && isSite(name);
  }
  // "Klondike in northwest Canada"
  const bool directed = word == u"in" && isListed(kDirections, firstWord(place)) &&
                        beginsWithPlace(place) && wordCount(name) <= 2 && areCapitalized(name);
  // "Extraordinary people in our ordinary world" is a title.
  return directed || (isListed(kLocating, word) && kind != u"people" && isSite(name));
}

/// Cuts a name before its town and province: "Mountain Villa in Suzhou, Jiangsu".
std::u16string_view withoutTown(std::u16string_view gloss) {
  const std::size_t comma = gloss.find(u", ");
  if (comma == std::u16string_view::npos) return gloss;
  const std::u16string_view province = gloss.substr(comma + 2);
  const std::size_t at = gloss.rfind(u" in ", comma);
  if (at == std::u16string_view::npos || wordCount(province) != 1 || !areCapitalized(province))
    return gloss;
  std::u16string_view town = gloss.substr(at + 4, comma - at - 4);
  if (isListed(kDirections, firstWord(town))) town = withoutFirstWord(town);
  return !town.empty() && areCapitalized(town) ? gloss.substr(0, at) : gloss;
}

/// The words behind the name of a people; empty if `text` does not end with them.
std::u16string_view kindOfPeople(std::u16string_view text) {
  return findListed(kPeoples, [&](std::u16string_view item) { return text.ends_with(item); });
}

}  // namespace

std::u16string_view withoutSite(std::u16string_view gloss) {
  if (!isCapital(gloss[0])) return gloss;
  for (std::size_t at = gloss.find(u' '); at < gloss.size(); at = gloss.find(u' ', at + 1)) {
    if (endsBefore(gloss.substr(0, at), gloss.substr(at + 1))) return gloss.substr(0, at);
  }
  return withoutTown(gloss);
}

bool namesPeople(std::u16string_view text) {
  return !text.empty() && isCapital(text[0]) && !kindOfPeople(text).empty();
}

std::u16string_view nameOfPeople(std::u16string_view text) {
  if (!namesPeople(text)) return {};
  const std::u16string_view name = text.substr(0, text.size() - kindOfPeople(text).size());
  // "She" would be the pronoun.
  return wordCount(name) == 1 && name != u"She" ? name : std::u16string_view();
}

}  // namespace dictionary
