#pragma once

#include <string_view>

/// Telling glosses that translate from those that describe their word. Glosses are without notes,
/// Chinese words and accents. The functions are pure.
namespace dictionary {

/// Returns whether the gloss describes what kind of thing its word names instead of translating it:
/// "a kind of rat", "food, drink etc".
bool isDescription(std::u16string_view gloss);

/// Returns whether the gloss tells only how its word is used, which is no answer for a reader who
/// looks the English text up: "classifier for ships", "name of a river".
bool isUsageNote(std::u16string_view gloss);

/// Returns what the gloss says its word is another name for, of an age, a region, a style or a
/// person: "Bengal" of "old Chinese name for Bengal", "Zhuge Liang" of "courtesy name of Zhuge
/// Liang". Returns
/// "" if it does not, or only describes: "pet name for a child". The view refers into `gloss`.
std::u16string_view otherNameFor(std::u16string_view gloss);

/// Returns whether the headword `english` says what the Chinese word is instead of what it means:
/// "place name" for a town, "suffix" for a character.
bool labelsItsWord(std::u16string_view english, std::u16string_view word);

}  // namespace dictionary
