#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace user {

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

TypedText readTyped(std::u16string_view text);

/// The first line of `text` that holds more than blanks, without its line end; the last one where
/// there is none. Lines end with CR, LF or both.
std::u16string_view firstLine(std::u16string_view text);

}  // namespace user
