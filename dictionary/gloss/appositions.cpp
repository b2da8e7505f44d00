#include "dictionary/gloss/appositions.h"

#include <algorithm>

#include "dictionary/gloss/english.h"
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
    u", consisting |, located |, capital |, name of |, known |, considered |, published |"
    u", equivalent |, equals |, popular |, as in |, as opposed |, opposite |, see |, same as |"
    u", abbr. |, short for |, now |, formerly |, comprising |, based on |, based in |, slogan |"
    u", for example |: | - | also known as | aka |, orig. |, originally |, from |, containing |"
    u", corresponding to |, meaning |, lit. |, cf |, currency |, genus |, trademark|, occurring |"
    u", renowned |, famous |, esp |, viz. |";

/// Examples follow: the text before is an equivalent if it is a noun of two words or more.
constexpr std::u16string_view kExamples = u" such as |";

/// They may also continue a sentence: what comes before them has at most two words and is no verb.
constexpr std::u16string_view kArticles = u", a |, an |, the |";

/// What begins with these goes on after a comma: "in literature, the cue for a poem".
constexpr std::u16string_view kClauseBeginnings =
    u"in|at|on|for|by|with|as|when|if|after|before|of|from|once|no|while|since|like|";

/// A proper name does not begin with these, though its gloss has a comma.
constexpr std::u16string_view kExclamations =
    u"Oh|Hey|Well|No|Yes|Ah|If|When|Sorry|Please|OK|I|In|As|There|";

constexpr std::u16string_view kKindsOfPlace =
    u"county|district|city|township|town|prefecture|municipality|province|banner|island|islands|"
    u"village|subdistrict|peninsula|river|region|lake|mountains|airport|parish|suburb|";
constexpr std::u16string_view kAfterPlace = u"in|of|on|near|at|between|under|";
constexpr std::u16string_view kBeforePlace = u"in|near|at|";

/// They end names of places, or follow them, without being the kind of a town or a region.
constexpr std::u16string_view kPlaceWords =
    u"mt|mount|mountain|peak|hill|temple|monastery|shrine|pagoda|tomb|tombs|grottoes|cave|caves|"
    u"gorge|gorges|pass|strait|bay|gulf|desert|plateau|waterfall|reservoir|dam|glacier|canal|"
    u"valley|basin|harbor|park|square|palace|museum|university|bridge|tower|garden|gardens|"
    u"autonomous|province-level|county-level|prefecture-level|pr.|prov.|commune|counties|cities|"
    u"rivers|ruins|";
/// In other texts they may mean anything: "the Law of the Sea".
constexpr std::u16string_view kWaters = u"sea|ocean|falls|pool|port|pole|state|states|";
/// In small letters.
constexpr std::u16string_view kProvinces =
    u"anhui|beijing|chongqing|fujian|gansu|guangdong|guangxi|guizhou|hainan|hebei|heilongjiang|"
    u"henan|hubei|hunan|jiangsu|jiangxi|jilin|liaoning|manchuria|mongolia|ningxia|qinghai|shaanxi|"
    u"shandong|shanghai|shanxi|sichuan|taipei|taiwan|tianjin|tibet|xinjiang|yunnan|zhejiang|";

/// Small words inside proper names.
constexpr std::u16string_view kInNames = u"of|the|and|or|de|von|for|van|da|del|";

bool isCapital(char16_t unit) { return unit >= u'A' && unit <= u'Z'; }

bool isVerb(std::u16string_view gloss) { return gloss.starts_with(u"to "); }

std::u16string lowered(std::u16string_view word) {
  std::u16string result(word);
  if (!result.empty() && isCapital(result[0])) result[0] += u'a' - u'A';
  return result;
}

/// The parts of the gloss between commas, none of them empty; the gloss itself if it has none.
std::vector<std::u16string_view> segments(std::u16string_view gloss) {
  std::vector<std::u16string_view> result;
  for (std::u16string_view rest = gloss; !rest.empty();) {
    const std::u16string_view part = rest.substr(0, rest.find(u", "));
    if (!part.empty()) result.push_back(part);
    rest.remove_prefix(std::min(rest.size(), part.size() + 2));
  }
  if (result.empty()) result.push_back(gloss);
  return result;
}

/// "China, Japan and Korea": a list that a name's gloss ends with.
bool endsInConjunction(const std::vector<std::u16string_view>& parts) {
  const std::u16string_view last = parts.back();
  const bool joined = last.find(u" and ") != std::u16string_view::npos ||
                      last.starts_with(u"and ") || last.find(u" or ") != std::u16string_view::npos;
  return joined && std::ranges::all_of(parts, [](std::u16string_view part) {
           return wordCount(part) <= 3 && (isCapital(part[0]) || part.starts_with(u"and "));
         });
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
  const bool open =
      isListed(kAfterPlace, finalWord) || finalWord == u"from" || finalWord == u"before";
  return open || before.ends_with(u',') ? gloss : before;
}

std::u16string_view withoutMarked(std::u16string_view gloss) {
  gloss = withoutDate(gloss);
  const bool alternates = gloss.starts_with(u"now ");  // "now hot, now cold"
  if (!alternates) gloss = gloss.substr(0, findMarker(kMarkers, gloss));
  // "sports such as soccer that use large balls" and "With a father such as you" need what follows.
  const std::u16string_view named = gloss.substr(0, findMarker(kExamples, gloss));
  if (wordCount(named) > 1 && !isListed(kClauseBeginnings, lowered(firstWord(named))))
    gloss = named;
  const std::u16string_view head = gloss.substr(0, findMarker(kArticles, gloss));
  const bool clause = isVerb(head) || isListed(kClauseBeginnings, firstWord(head));
  return clause || wordCount(head) > 2 ? gloss : head;
}

/// Returns whether the name ends with the kind of a place: "Yuci district".
bool namesKindOfPlace(std::u16string_view name) {
  return isCapital(name[0]) && wordCount(name) > 1 &&
         isListed(kKindsOfPlace, lowered(lastWord(name)));
}

/// Returns whether the text is a proper name rather than the beginning of a sentence: capitalised
/// words, two words with one capital ("Suzhou embroidery"), or the name of a place.
bool isName(std::u16string_view text) {
  if (!isCapital(text[0]) || isListed(kExclamations, firstWord(text))) return false;
  if (wordCount(text) <= 2 || namesKindOfPlace(text)) return true;
  for (std::size_t at = 0; at < text.size();) {
    const std::u16string_view word = firstWord(text.substr(at));
    if (!isCapital(word[0]) && !isDigit(word[0]) && !isListed(kInNames, word)) return false;
    at += word.size() + 1;
  }
  return true;
}

/// Cuts a proper name at its first comma: what follows says where or who it is. A common noun of at
/// most two words is cut before a capital: "triad, Chinese crime gang".
std::u16string_view withoutNameTail(std::u16string_view gloss) {
  const std::vector<std::u16string_view> parts = segments(gloss);
  if (parts.size() == 1 || endsInConjunction(parts)) return gloss;
  const bool noun = !isCapital(gloss[0]) && !isVerb(gloss) && wordCount(parts[0]) <= 2 &&
                    wordCount(parts[1]) > 1 && isCapital(parts[1][0]) && parts[1][1] != u' ' &&
                    !isListed(kClauseBeginnings, firstWord(gloss));
  return isName(parts[0]) || noun ? parts[0] : gloss;
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
  return lastWord(rest) == u"and" ? gloss : rest;
}

/// Returns whether a word of the text, in small letters, is a kind of place or an item of the list.
bool namesPlace(std::u16string_view text, std::u16string_view list) {
  while (!text.empty()) {
    std::u16string_view word = firstWord(text);
    text.remove_prefix(std::min(text.size(), word.size() + 1));
    if (word.ends_with(u',')) word.remove_suffix(1);
    const std::u16string small = lowered(word);
    const bool place = isListed(kKindsOfPlace, small) || isListed(kPlaceWords, small);
    if (place || isListed(list, small)) return true;
  }
  return false;
}

/// Returns whether what begins at the preposition tells where the place of the name before is.
bool locates(std::u16string_view name, std::u16string_view tail) {
  const std::u16string_view word = firstWord(tail);
  if (!isListed(kAfterPlace, word) || word == u"of") return false;
  return namesPlace(name, kWaters) ||
         (isListed(kBeforePlace, word) && namesPlace(tail, kProvinces));
}

/// Cuts the name of a place after the kind of the place, and a longer name of capitalised words
/// before "in" or "near" where one of them and what follows tells a place. In doubt nothing is cut:
/// "Law on the National Emblem" is no law named "Law".
std::u16string_view withoutPlaceTail(std::u16string_view gloss) {
  if (!isCapital(gloss[0])) return gloss;
  const bool longName = wordCount(gloss) > 4;
  bool name = true;  // whether all words so far belong to a proper name
  std::u16string_view before;
  std::size_t count = 0;
  for (std::size_t at = 0; at < gloss.size(); ++count) {
    const std::u16string_view word = firstWord(gloss.substr(at));
    const bool place = count > 1 && isListed(kKindsOfPlace, lowered(before));
    const bool located =
        longName && name && count > 0 && locates(gloss.substr(0, at - 1), gloss.substr(at));
    const bool ends = isListed(kAfterPlace, word) || (place && word == u"or");
    if (ends && (place || located)) return gloss.substr(0, at - 1);
    name = name && (isCapital(word[0]) || isListed(kInNames, word));
    before = word;
    at += word.size() + 1;
  }
  return gloss;
}

bool areCapitalized(std::u16string_view text) {
  while (!text.empty()) {
    const std::u16string_view word = firstWord(text);
    if (word.empty() || !isCapital(word[0])) return false;
    text.remove_prefix(std::min(text.size(), word.size() + 1));
  }
  return true;
}

/// Returns the spellings in "Liberman, Lieberman or Liebermann": capitalised names of equally many
/// words, since "CD or DVD Drive" shares its last one. Empty if the gloss is no such list.
std::vector<std::u16string_view> alternativeNames(std::u16string_view gloss) {
  const std::size_t at = gloss.find(u" or ");
  if (at == std::u16string_view::npos) return {};
  std::vector<std::u16string_view> names = segments(gloss.substr(0, at));
  if (names.back().ends_with(u',')) names.back().remove_suffix(1);
  names.push_back(gloss.substr(at + 4));
  const std::size_t words = wordCount(names[0]);
  const bool alike = std::ranges::all_of(names, [&](std::u16string_view name) {
    return !name.empty() && wordCount(name) == words && areCapitalized(name);
  });
  return alike ? names : std::vector<std::u16string_view>{};
}

}  // namespace

std::u16string_view withoutApposition(std::u16string_view gloss) {
  return withoutPlaceTail(withoutYears(withoutNameTail(withoutMarked(gloss))));
}

std::vector<std::u16string_view> listedEquivalents(std::u16string_view gloss, bool names) {
  if (std::vector<std::u16string_view> spellings = alternativeNames(gloss); !spellings.empty()) {
    return spellings;
  }
  const bool open = gloss.ends_with(u" etc");
  std::vector<std::u16string_view> parts =
      segments(open ? gloss.substr(0, gloss.size() - 4) : gloss);
  if (parts.size() == 1) return {gloss};
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
  if (at == std::u16string_view::npos || at + 4 >= end || !isListed(kKindsOfPlace, lowered(kind))) {
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

bool describesPlace(std::u16string_view gloss) {
  const std::vector<std::u16string_view> parts = segments(gloss);
  if (namesKindOfPlace(withoutApposition(gloss))) return true;
  if (parts.size() == 1 || !isName(parts[0])) return false;
  std::u16string_view tail = parts[1];
  tail.remove_prefix(listedBeginning(u"a |an |the |", tail).size());
  for (std::size_t count = 0; count < 3 && !tail.empty(); ++count) {
    const std::u16string_view kind = firstWord(tail);
    tail.remove_prefix(std::min(tail.size(), kind.size() + 1));
    const bool located = tail.starts_with(u"in ") || tail.starts_with(u"of ");
    if (located && (isListed(kKindsOfPlace, kind) || kind == u"capital")) return true;
  }
  return false;
}

}  // namespace dictionary
