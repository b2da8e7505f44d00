#pragma once

#include <span>
#include <string_view>

/// Translations of words that people meet, in the grammar of the source, written for this
/// dictionary where the source fails. Words are compared without regard to the case of ASCII
/// letters.
namespace dictionary {

/// A word in lower case and its translation.
struct Supplement {
  std::u16string_view word;
  std::u16string_view translation;
};

/// Return the whole tables that the functions below search, ordered by the words' code units. Every
/// text in them must be among the word's rows in a full dictionary; a supplement that is not has no
/// effect any more, because the source has a translation of its own.
std::span<const Supplement> supplements();
std::span<const Supplement> corrections();
std::span<const Supplement> givenNames();

/// Returns a translation for a word whose translation in the source cannot be used ("=has not",
/// "（等于I have）"), or comes from the web alone; otherwise "".
std::u16string_view supplementaryTranslation(std::u16string_view word);

/// Returns a translation to be used instead of the source's, which gives an expansion ("must not
/// 之缩写"), a description (表示否定) or something other than what the word means; otherwise "".
std::u16string_view correctedTranslation(std::u16string_view word);

/// Returns the Chinese form of a given name for which the source has other meanings only ("john" is
/// 盥洗室, 厕所, 嫖客 there), as a noted name; otherwise "".
std::u16string_view missingGivenName(std::u16string_view word);

}  // namespace dictionary
