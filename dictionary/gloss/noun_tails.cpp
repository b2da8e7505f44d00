#include "dictionary/gloss/noun_tails.h"

#include <algorithm>

#include "dictionary/gloss/english.h"
#include "dictionary/gloss/names/names.h"
#include "dictionary/gloss/word_list.h"

namespace dictionary {
namespace {

/// What follows them explains the noun before, which has at most kMaxNounWords unless it is a name.
constexpr std::u16string_view kMarkers =
    u", ancient |, like |, approx. |, c. |, as used |, with roots |, with leaves |, with capital |"
    u", hybrid |, promulgated |, landed |, launched in |, currently |, feeding on |, the first |"
    u", the second |, the sign of |, a type of |, a kind of |, a species of |, a variety of |"
    u", a speciality of |, simplified |, traditional |, linking |, connecting |, granting |"
    u", acting as |, echoing |, possibly |, specifically |, marketed as |, prized for |"
    u", reputed to |, found on |, formed like |, decorated with |, stewed in |, kept by |"
    u", between |, of which |, onto which |, equal to |, equivalent to |, favorite of |"
    u", descendants of |, leader of |, vassal of |, eldest of |, youngest of |, second eldest |"
    u", third eldest |, second of |, third of |, fourth of |, fifth of |, genre of |, available |"
    u", its |, many spp|";
constexpr std::size_t kMaxNounWords = 4;
/// The same after names.
constexpr std::u16string_view kNameMarkers =
    u", north |, south |, east |, west |, national |, king of |, standing |, scene of |, site of |"
    u", near | son of |";
/// Those that follow a place, of which " in " may tell where it is: "Dharamsala in Himachal
/// Pradesh, north India".
constexpr std::u16string_view kPlaceMarkers =
    u", north |, south |, east |, west |, near |, scene of |, site of |";

/// Kinds of things that a gloss names behind a noun, as their last words: "monism, belief that".
/// No adjectives are met before them: "soft, pliable wool fabric" is one noun.
constexpr std::u16string_view kKinds =
    u"algae|alphabet|belief|bush|cake|chemical|clam|coin|creature|currency|deity|disease|disorder|"
    u"drink|drug|dumpling|enzyme|fiber|flatworm|formula|genre|hydrocarbon|infection|insecticide|"
    u"instrument|instruments|kimono|laborer|larva|leaves|medicine|monosaccharide|monument|mushroom|"
    u"ornament|ox|particle|period|pest|pizza|plant|reptile|role|roles|rolls|root|sheath|shrub|"
    u"slang|snacks|society|soup|standard|teacher|technique|terrain|theory|tree|tribes|weapon|herb|"
    u"beasts|";
/// What may follow the kind.
constexpr std::u16string_view kAfterKind =
    u"in|of|for|from|with|that|which|whose|used|made|native|similar|causing|containing|caused|"
    u"attached|covering|equating|related|dating|considered|";
/// The most words of the kind: "three-stringed Japanese musical instrument".
constexpr std::size_t kMaxKindWords = 5;

/// The fields in which a noun has its meaning, at its end.
constexpr std::u16string_view kFields =
    u" used in TCM| in TCM| in Buddhism| in Tibetan Buddhism| in Chinese chess|"
    u" in traditional Chinese astronomy| in Chinese astronomy|";

/// Returns whether the part behind a comma begins with a kind of thing: "evergreen bush of".
bool namesKind(std::u16string_view part) {
  for (std::size_t count = 0; count < kMaxKindWords && !part.empty(); ++count) {
    const std::u16string_view word = firstWord(part);
    part.remove_prefix(std::min(part.size(), word.size() + 1));
    // "site of a plant", "cabbage, rice and tofu soup"
    if (word == u"and" || isListed(kAfterKind, word)) return false;
    if (isListed(kKinds, word)) return part.empty() || isListed(kAfterKind, firstWord(part));
  }
  return false;
}

/// Cuts a noun before its kind.
std::u16string_view withoutKind(std::u16string_view gloss) {
  const std::u16string_view noun = gloss.substr(0, gloss.find(u", "));
  if (noun.size() == gloss.size() || wordCount(noun) > kMaxNounWords) return gloss;
  const std::u16string_view tail = gloss.substr(noun.size() + 2);
  return namesKind(tail.substr(0, tail.find(u", "))) ? noun : gloss;
}

std::u16string_view withoutField(std::u16string_view noun) {
  const std::u16string_view field =
      findListed(kFields, [&](std::u16string_view item) { return noun.ends_with(item); });
  const std::u16string_view bare = noun.substr(0, noun.size() - field.size());
  return wordCount(bare) <= 2 ? bare : noun;
}

}  // namespace

std::u16string_view withoutNounTail(std::u16string_view gloss) {
  if (gloss.starts_with(u"to ") || beginsClause(gloss)) return gloss;
  const std::u16string_view noun =
      withoutField(withoutKind(gloss.substr(0, firstPlaceOfListed(kMarkers, gloss))));
  // "a person who, like a pig, is fat"
  if (noun.empty() || isListed(u"who|that|which|", lastWord(noun))) return gloss;
  if (!isCapital(gloss[0])) return wordCount(noun) <= kMaxNounWords ? noun : gloss;
  const std::u16string_view name = noun.substr(0, firstPlaceOfListed(kNameMarkers, noun));
  const bool located = !listedBeginning(kPlaceMarkers, noun.substr(name.size())).empty();
  return name.substr(0, located ? name.find(u" in ") : name.size());
}

}  // namespace dictionary
