#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace nhw32 {

/// Turns one character (a UTF-16 unit or a pair) into the bytes of a code page; none where it has
/// no such character.
using CharacterToBytes = std::function<std::optional<std::string>(std::u16string_view character)>;

/// `word` in the bytes of a code page, at most `capacity` of them, cut at a whole character. The
/// hyphens and apostrophes of word processors become the plain ones under which dictionaries and
/// code pages know them. "" where the code page lacks a character: question marks in its place
/// would pass for a word.
std::string ansiWord(std::u16string_view word, std::size_t capacity,
                     const CharacterToBytes& toBytes);

}  // namespace nhw32
