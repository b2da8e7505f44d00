#pragma once

#include <string>
#include <string_view>

/// Latin letters with accents, and those without. Texts are UTF-16. The functions are pure and
/// throw nothing but std::bad_alloc.
namespace text {

/// Returns `word` without accents: each letter of Latin-1, Latin Extended-A, -B and Additional as
/// the letter of A to Z that it is a form of, combining marks (U+0300 to U+036F) left out, and ß,
/// æ, œ, þ and the like written out with two letters. Every other unit is unchanged, as are letters
/// that are no form of one of A to Z, such as U+0292. The result may be longer than `word`.
std::u16string withoutAccents(std::u16string_view word);

/// Returns whether `unit` is a combining diacritical mark (U+0300 to U+036F), of which decomposed
/// letters have one or more.
constexpr bool isCombiningMark(char16_t unit) { return unit >= 0x300 && unit <= 0x36F; }

}  // namespace text
