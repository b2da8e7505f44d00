#pragma once

#include <string_view>

/// Names of mountains, buildings, peoples and the like whose kind the gloss writes in small
/// letters. Texts are without notes, Chinese words and accents, and not empty. The functions are
/// pure; the views that they return refer into their argument.
namespace dictionary {

/// Cuts such a name where its gloss begins to tell the place: "Mt Tai in Shandong", "Wudang
/// Mountain range in northwest Hubei", "Lisu ethnic group of Yunnan".
std::u16string_view withoutSite(std::u16string_view gloss);

/// Returns whether the text ends as the name of a people does: "Hui Islamic ethnic group".
bool namesPeople(std::u16string_view text);

/// Returns the name of a people without what it is: "Lisu" for "Lisu ethnic group". Empty if the
/// text, which may be empty, is none, or if its name has several words: "Hui Islamic ethnic group".
std::u16string_view nameOfPeople(std::u16string_view text);

}  // namespace dictionary
