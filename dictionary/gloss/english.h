#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// English headwords from glosses. The functions are pure.
namespace dictionary {

/// Returns `text` with typographic quotation marks, dashes, ellipses and wide commas as ASCII.
std::u16string withAsciiMarks(std::u16string_view text);

/// Returns the English headword of a gloss without notes and Chinese words: accents folded,
/// "sb" and "sth" written out, a verb's "to" and an article at the beginning removed, except from a
/// sentence, and quotation marks, full stops and ellipses around it. Returns nullopt if it cannot
/// be a headword (headword() in source/cleanup.h). `phrase`: the text is an idiom, a saying or what
/// they mean, among which sentences are more frequent.
std::optional<std::u16string> englishHeadword(std::u16string_view gloss, bool phrase = false);

/// Returns whether the text, which begins with an article, is a sentence that needs it: "the die is
/// cast", but not "a person who is strict". It is told from its verb; in doubt it is none.
bool isSentence(std::u16string_view text);

/// Number of words: of blanks and one more; 0 for "".
std::size_t wordCount(std::u16string_view text);

/// Returns the word at the beginning or the end of `text`, up to the next blank.
std::u16string_view firstWord(std::u16string_view text);
std::u16string_view lastWord(std::u16string_view text);

}  // namespace dictionary
