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

/// All of `text` as a box of one line can hold it: a blank for every line end (CR, LF or both).
std::u16string onOneLine(std::u16string_view text);

}  // namespace user
