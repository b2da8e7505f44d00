#pragma once

#include <string_view>

/// What a gloss tells of the noun or name that it begins with. Glosses are without notes, Chinese
/// words and accents, and not empty. The functions are pure; the views that they return refer into
/// their argument.
namespace dictionary {

/// Cuts a noun of at most four words, or a name, before what is told of it behind a comma: "cuju,
/// ancient Chinese football", "ketose, monosaccharide containing ketone group", "Snake island
/// viper, feeding on migrating birds". Adjectives of one noun stay: "soft, fat meat".
std::u16string_view withoutNounTail(std::u16string_view gloss);

}  // namespace dictionary
