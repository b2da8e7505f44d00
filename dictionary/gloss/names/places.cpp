#include "dictionary/gloss/names/places.h"

#include <algorithm>
#include <string>

#include "dictionary/gloss/english.h"
#include "dictionary/gloss/names/names.h"
#include "dictionary/gloss/word_list.h"

namespace dictionary {
namespace {

constexpr std::u16string_view kAfterPlace = u"in|of|on|near|at|between|under|";
constexpr std::u16string_view kBeforePlace = u"in|near|at|";

/// They end names of places, or follow them, without being the kind of a town or a region.
constexpr std::u16string_view kPlaceWords =
    u"mt|mount|mountain|peak|hill|temple|monastery|shrine|pagoda|tomb|tombs|grottoes|cave|caves|"
    u"gorge|gorges|pass|strait|bay|gulf|desert|plateau|waterfall|reservoir|dam|glacier|canal|"
    u"valley|basin|harbor|park|square|palace|museum|university|bridge|tower|garden|gardens|"
    u"autonomous|province-level|county-level|prefecture-level|pr.|prov.|commune|counties|cities|"
    u"rivers|ruins|";
/// They are cut behind as the kinds of towns and regions are, though only before "in" or "near".
constexpr std::u16string_view kSites =
    u"temple|monastery|caves|grotto|grottoes|plain|cemetery|museum|university|palace|pagoda|";
/// In other texts they may mean anything: "the Law of the Sea".
constexpr std::u16string_view kWaters = u"sea|ocean|falls|pool|port|pole|state|states|";
/// What follows these tells what they are for: "State Administration Committee on Military Products
/// Trade".
constexpr std::u16string_view kOffices = u"Committee|Government|Commission|Office|";
/// In small letters.
constexpr std::u16string_view kProvinces =
    u"anhui|beijing|chongqing|fujian|gansu|guangdong|guangxi|guizhou|hainan|hebei|heilongjiang|"
    u"henan|hubei|hunan|jiangsu|jiangxi|jilin|liaoning|manchuria|mongolia|ningxia|qinghai|shaanxi|"
    u"shandong|shanghai|shanxi|sichuan|taipei|taiwan|tianjin|tibet|xinjiang|yunnan|zhejiang|";

/// Returns whether a word of the text, in small letters, is a kind of place or an item of the list.
bool namesPlace(std::u16string_view text, std::u16string_view list) {
  while (!text.empty()) {
    std::u16string_view word = firstWord(text);
    text.remove_prefix(std::min(text.size(), word.size() + 1));
    if (word.ends_with(u',')) word.remove_suffix(1);
    const std::u16string small = lowered(word);
    const bool place = isKindOfPlace(small) || isListed(kPlaceWords, small);
    if (place || isListed(list, small)) return true;
  }
  return false;
}

/// Returns whether what begins at the preposition tells where the place of the name before is.
bool locates(std::u16string_view name, std::u16string_view tail) {
  const std::u16string_view word = firstWord(tail);
  if (!isListed(kAfterPlace, word) || word == u"of") return false;
  if (isListed(kOffices, lastWord(name))) return false;
  // "River on a Spring Night" is no river of that name.
  return (wordCount(name) > 1 && namesPlace(name, kWaters)) ||
         (isListed(kBeforePlace, word) && namesPlace(tail, kProvinces));
}

}  // namespace

std::u16string_view withoutPlaceTail(std::u16string_view gloss) {
  if (!isCapital(gloss[0])) return gloss;
  bool name = true;  // whether all words so far belong to a proper name
  std::u16string_view before;
  std::size_t count = 0;
  for (std::size_t at = 0; at < gloss.size(); ++count) {
    const std::u16string_view word = firstWord(gloss.substr(at));
    const bool place = count > 1 && isKindOfPlace(before);
    const bool located = name && count > 0 && locates(gloss.substr(0, at - 1), gloss.substr(at));
    const bool site =
        count > 1 && isListed(kSites, lowered(before)) && isListed(kBeforePlace, word);
    if (site) return gloss.substr(0, at - 1);
    const bool ends = isListed(kAfterPlace, word);
    if (ends && (place || located)) return gloss.substr(0, at - 1);
    name = name && (isCapital(word[0]) || isSmallWordInNames(word));
    before = word;
    at += word.size() + 1;
  }
  return gloss;
}

}  // namespace dictionary
