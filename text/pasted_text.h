#pragma once

#include <string>
#include <string_view>

#include "text/readings.h"

namespace text {

/// Returns the word or phrase that is to be looked up for `pasted`, a text that was copied with
/// what surrounds it: spelled as in a dictionary (spelled() in word_characters.h), a single blank
/// for every run of blanks, tabs and line ends, and without the blanks, quotation marks, brackets
/// and punctuation around it. A bracket stays where its partner is inside the text ("chiral(ity)"),
/// and so do the full stops of ".NET" and "e.g.". Accents go where the word with them is no
/// headword by `isHeadword` (see chooseReading), and stay in a text with Chinese characters. Where
/// nothing would be left `pasted` is returned as it is. Throws nothing but std::bad_alloc.
std::u16string pastedWord(std::u16string_view pasted, const IsHeadword& isHeadword);

}  // namespace text
