#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// How a word is passed on in a code page. Portable, since the conversion of one character is the
/// caller's.
namespace nhw32 {

/// Converts one character (a UTF-16 code unit or a surrogate pair) to the bytes of a code page.
/// Returns nullopt if the code page does not contain the character.
using CharacterToBytes = std::function<std::optional<std::string>(std::u16string_view character)>;

/// Converts `word` to the bytes of a code page, at most `capacity` bytes, truncated at a character
/// boundary. Returns "" if any character is missing from the code page: question marks in its place
/// could be mistaken for a word. Throws what `toBytes` throws.
std::string ansiWord(std::u16string_view word, std::size_t capacity,
                     const CharacterToBytes& toBytes);

}  // namespace nhw32
