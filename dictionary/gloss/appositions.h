#pragma once

#include <string_view>

/// Telling the equivalent in a gloss from what explains it. Glosses are without notes, Chinese
/// words and accents, and not empty. The functions are pure.
namespace dictionary {

/// Returns the beginning of the gloss that is its equivalent, up to an explanation of it: "Nuuk,
/// capital of Greenland", "wet market, i.e. a marketplace". A name of a place ends with its kind:
/// "Jiaocheng county in Lüliang". `phrase`: the Chinese word is an idiom or a saying, whose commas
/// are those of a sentence. The view refers into `gloss`.
std::u16string_view withoutApposition(std::u16string_view gloss, bool phrase = false);

/// Returns whether the gloss names a place and says so: "Yuci district", "Nuuk, capital of
/// Greenland".
bool describesPlace(std::u16string_view gloss);

}  // namespace dictionary
