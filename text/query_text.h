#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The rules by which every window turns the user's input into parts of SQL texts and into result
/// lines. All texts are UTF-16; lengths count code units. The functions keep no state and throw
/// nothing but std::bad_alloc.
namespace user {

/// Language classes as getEorC returns them.
inline constexpr std::u16string_view kEnglish = u"E";
inline constexpr std::u16string_view kChinese = u"C";

/// Doubles every single quote in `text`, in place, so that it can be put between single quotes in
/// an SQL text. Returns the rewritten `text`. To be called once for a text: a second call doubles
/// the quotes again.
std::u16string& escapeQuote(std::u16string& text);

/// Returns the language class of `text`: kChinese if one code unit is text::kFirstChinese or above,
/// otherwise kEnglish, also for the empty text.
std::u16string_view getEorC(std::u16string_view text);

/// What the quick lookup does with a typed text.
enum class Typed : std::uint8_t {
  kNothing,  ///< empty, or blanks only
  kRefused,  ///< English that begins with a wildcard (* _ ? %)
  kWord,     ///< to be looked up
};

/// A typed text as readTyped() classifies it.
struct TypedText {
  Typed kind = Typed::kNothing;
  std::u16string word;           ///< trimmed, its quotes doubled; "" unless `kind` is kWord
  std::u16string_view language;  ///< kEnglish or kChinese; "" for kNothing
};

/// Classifies a text that was typed into the quick lookup window, and prepares it to be looked up.
TypedText readTyped(std::u16string_view text);

/// Returns `text` with the user's wildcards turned into those of LIKE. Deliberate: "?" becomes "_"
/// in the caller's variable as well, "*" becomes "%" in the returned text only.
std::u16string convertWildcard(std::u16string& text);

/// Returns `source` with every occurrence of `search` replaced. `search` is one character, which
/// `replacement` does not contain; an empty `search` changes nothing. Deliberate: for a longer
/// `search` only one character is removed at each match, and a replacement that yields new matches
/// never ends.
std::u16string replaceStr(std::u16string_view source, std::u16string_view search,
                          std::u16string_view replacement);

/// Returns the columns that `text` takes in a result line: one for every code unit of an English
/// text, two for every code unit of a Chinese one. Deliberate: its ASCII letters count two as well.
std::size_t displayLength(std::u16string_view text);

/// Returns `text` followed by blanks up to `width` columns, or by two blanks where it is as wide
/// already.
std::u16string padWord(std::u16string_view text, std::int16_t width);

}  // namespace user
