#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The characters of words: what a UTF-16 code unit of running text is to a word, how dictionaries
/// spell it, and which letter it is without its accent. All functions are pure and throw nothing
/// but std::bad_alloc.
namespace text {

enum class UnitKind : std::uint8_t {
  kBreak,       ///< a blank, a line end, or anything that no headword contains
  kLetter,      ///< a Latin letter, a combining mark or the soft hyphen (U+00AD)
  kDigit,       ///< 0 to 9, also full-width or subscript, as in CO₂
  kHyphen,      ///< "-", U+2010, U+2011
  kApostrophe,  ///< "'", and the characters that are typed or set in its place
  kHan,
  kInner,  ///< what the headwords of some terms contain besides: . , / & + # ( ) [ ] and U+2013
};

/// Returns the kind of a unit; full-width forms (U+FF01 to U+FF5E) are of the kind of the narrow
/// ones.
UnitKind unitKind(char16_t unit);

/// Returns the ASCII character for a full-width one; every other unit unchanged.
constexpr char16_t narrow(char16_t unit) {
  return unit >= 0xFF01 && unit <= 0xFF5E ? static_cast<char16_t>(unit - 0xFF01 + u'!') : unit;
}

/// Returns whether `unit` is a blank inside a line.
constexpr bool isBlank(char16_t unit) {
  return unit == u' ' || unit == u'\t' || unit == 0xA0 || unit == 0x3000;
}

/// Returns whether `unit` ends a line. U+000B is a line end inside a paragraph in rich edit
/// controls and word processors.
constexpr bool isLineEnd(char16_t unit) {
  return unit == u'\r' || unit == u'\n' || unit == u'\v' || unit == 0x2028;
}

/// Return whether `unit` is a bracket, or a quotation mark of a pair, that opens or closes;
/// full-width forms are none.
bool isOpeningBracket(char16_t unit);
bool isClosingBracket(char16_t unit);

/// The soft hyphen marks where a word may be divided, and is seen only where a line ends there.
inline constexpr char16_t kSoftHyphen = 0xAD;

/// Returns `text` as dictionaries spell it: full-width forms and subscript digits as the ASCII
/// ones, typographic hyphens, apostrophes and U+2013 as "-" and "'", ligatures (U+FB00 to U+FB06)
/// as their letters, without soft hyphens. Letters keep their accents.
std::u16string spelled(std::u16string_view text);

/// Returns `word` without accents: each letter of Latin-1, Latin Extended-A, -B and Additional as
/// the letter of A to Z that it is a form of, combining marks (U+0300 to U+036F) left out, and ß,
/// æ, œ, þ and the like written out with two letters. Every other unit is unchanged, as are letters
/// that are no form of one of A to Z, such as U+0292. The result may be longer than `word`.
std::u16string withoutAccents(std::u16string_view word);

}  // namespace text
