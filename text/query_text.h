#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Texts of the queries: what every window does to the user's input before it becomes SQL.
/// All texts are UTF-16; lengths count code units.
namespace user {

/// Language classes as getEorC returns them.
inline constexpr std::u16string_view kEnglish = u"E";
inline constexpr std::u16string_view kChinese = u"C";

/// Doubles every single quote in `text`, in place, so that it can stand between single quotes in
/// SQL. Returns the rewritten `text`.
std::u16string& escapeQuote(std::u16string& text);

/// Language class of `text`: kChinese as soon as one code unit is 256 or above, else kEnglish
/// (also for the empty text).
std::u16string_view getEorC(std::u16string_view text);

/// What a typed text is for the quick lookup.
enum class Typed : std::uint8_t {
  kNothing,  ///< empty, or blanks only
  kRefused,  ///< English that begins with a wildcard (* _ ? %)
  kWord,     ///< to be looked up
};

/// A typed text, read.
struct TypedText {
  Typed kind = Typed::kNothing;
  std::u16string word;           ///< without outer blanks, its quotes doubled; "" unless a kWord
  std::u16string_view language;  ///< kEnglish or kChinese, as getEorC gives it for the word
};

/// Reads what was typed into the quick lookup window. Pure; the caller's text stays as it is.
TypedText readTyped(std::u16string_view text);

/// Turns the user's wildcards into those of LIKE. "?" becomes "_" in the caller's variable as well;
/// "*" becomes "%" in the returned text only.
std::u16string convertWildcard(std::u16string& text);

/// Replaces every occurrence of `search`, which is a single character that `replacement` does not
/// contain; an empty `search` changes nothing. Meant for nothing longer: one character only is
/// taken out for a longer `search`, and a replacement that yields new matches is replaced without
/// end.
std::u16string replaceStr(std::u16string_view source, std::u16string_view search,
                          std::u16string_view replacement);

/// Columns that `text` takes in a result line: two for every code unit of a Chinese text (its
/// ASCII letters included), one for every code unit of an English one.
std::size_t displayLength(std::u16string_view text);

/// `text` followed by blanks up to `width` columns, or by two blanks where it is as wide already.
std::u16string padWord(std::u16string_view text, std::int16_t width);

}  // namespace user
