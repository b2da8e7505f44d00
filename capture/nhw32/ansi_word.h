#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace nhw32 {

/// Turns one character (a UTF-16 unit or a pair) into the bytes of a code page.
using CharacterToBytes = std::function<std::string(std::u16string_view character)>;

/// `word` in the bytes of a code page, at most `capacity` of them, cut at a whole character. The
/// hyphens and apostrophes of word processors become the plain ones under which dictionaries and
/// code pages know them.
std::string ansiWord(std::u16string_view word, std::size_t capacity,
                     const CharacterToBytes& toBytes);

}  // namespace nhw32
