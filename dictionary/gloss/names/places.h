#pragma once

#include <string_view>

/// Names of places in glosses. Texts are without notes, Chinese words and accents, and not empty.
/// The function is pure.
namespace dictionary {

/// Cuts the name of a place after the kind of the place, and a longer name of capitalised words
/// before "in" or "near" where one of them and what follows tells a place. In doubt nothing is cut:
/// "Law on the National Emblem" is no law named "Law". The view refers into `gloss`.
std::u16string_view withoutPlaceTail(std::u16string_view gloss);

}  // namespace dictionary
