#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Taking apart glosses that give several equivalents. Glosses are without notes, Chinese words and
/// accents, and not empty. The functions are pure.
namespace dictionary {

/// Returns the equivalents of a gloss that lists single words or verbs, "feast, banquet", "to sift,
/// to strain", or spellings of a name, "Clark or Clarke". Returns the gloss itself where a comma
/// does anything else. `names`: capitalised words are a list as well, not a place and its country.
/// The views refer into `gloss`.
std::vector<std::u16string_view> listedEquivalents(std::u16string_view gloss, bool names);

/// Returns the two words of "hide or harbor", "to insult or maltreat"; the gloss itself if it is
/// anything else. Only a character has both as its meanings: a longer word may be of opposites,
/// "life or death". The views refer into `gloss`.
std::vector<std::u16string_view> alternativeWords(std::u16string_view gloss);

/// Returns the names that "or" joins, each with the kind of the thing that is written once: "Luye
/// township" and "Luyeh township" for "Luye or Luyeh township", "Lixia" and "Start of Summer". Any
/// other text is returned as it is.
std::vector<std::u16string> namesWithKind(std::u16string_view name);

}  // namespace dictionary
