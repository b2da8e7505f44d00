#pragma once

#include <string_view>

/// Dates at the end of names: of persons, dynasties, treaties, battles. Texts are without notes,
/// Chinese words and accents, and not empty. The functions are pure; the views that they return
/// refer into their argument.
namespace dictionary {

/// Cuts a name before its date: "Xia dynasty c. 2000 BC", "scary to think about coined c. 2013".
std::u16string_view withoutRoughDate(std::u16string_view gloss);

/// Removes the years at the end, or the date of a name: "Lord Kelvin 1824-1907", "First Emperor
/// 259-210 BC", "Xi'an Incident of 12th December 1936", "Paris Commune 1871".
std::u16string_view withoutYears(std::u16string_view gloss);

}  // namespace dictionary
