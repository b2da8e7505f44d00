#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Telling proper names from other texts by their capitals. Texts are without notes, Chinese words
/// and accents. The functions are pure; the views that they return refer into their argument.
namespace dictionary {

constexpr bool isCapital(char16_t unit) { return unit >= u'A' && unit <= u'Z'; }

/// Returns the word with its first letter small.
std::u16string lowered(std::u16string_view word);

/// Returns the parts of the text between commas, none of them empty; the text itself if it has no
/// comma.
std::vector<std::u16string_view> partsBetweenCommas(std::u16string_view text);

/// Returns whether the word may stand in a proper name without a capital: "of".
bool isSmallWordInNames(std::u16string_view word);

/// Returns whether each word of the text begins with a capital.
bool areCapitalized(std::u16string_view text);

/// Returns whether the word is a kind of town or region, written with a capital or not: "district".
bool isKindOfPlace(std::u16string_view word);

/// Returns whether the name, which is not empty, ends with the kind of a place: "Yuci district".
bool namesKindOfPlace(std::u16string_view name);

/// Returns whether the words of the text are those of a proper name: capitalised ones, numbers, and
/// small words between.
bool areNameWords(std::u16string_view text);

/// Returns whether the word is an exclamation, written with a capital or not: "oh".
bool isExclamation(std::u16string_view word);

/// Returns whether the text begins with a preposition or a conjunction, after which it goes on
/// behind a comma: "in literature, the cue for a poem".
bool beginsClause(std::u16string_view text);

/// Returns whether the text ends as a sentence does, rather than with an abbreviation: "Yeah,
/// right!", but not "Nike, Inc."
bool endsAsSentence(std::u16string_view text);

/// Returns whether the first word of the text may be that of a proper name, other than "If" and
/// "Oh".
bool mayBeginName(std::u16string_view text);

/// Returns whether the text, which is not empty, is a proper name rather than the beginning of a
/// sentence: capitalised words, two words with one capital ("Suzhou embroidery"), or the name of a
/// place.
bool isName(std::u16string_view text);

}  // namespace dictionary
