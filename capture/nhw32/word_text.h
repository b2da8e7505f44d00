#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// What a word is, and how it is passed on in a code page. Portable; all functions are pure.
namespace nhw32 {

/// Maximum length of a word in UTF-16 code units. A longer run is data, not language.
inline constexpr std::size_t kMaxWord = 128;

/// A half-open range of UTF-16 code units.
struct Range {
  std::size_t begin = 0;
  std::size_t end = 0;
  bool operator==(const Range&) const = default;
};

/// Returns the word that contains the code unit at `index`: a run of Latin letters with single
/// hyphens and apostrophes between letters, or a run of Han characters. Returns nullopt for any
/// other character, for an index past the end, and for a run longer than kMaxWord. Reads at most
/// kMaxWord code units on each side of `index`.
std::optional<Range> wordAt(std::u16string_view text, std::size_t index);

/// Converts one character (a UTF-16 code unit or a surrogate pair) to the bytes of a code page.
/// Returns nullopt if the code page does not contain the character.
using CharacterToBytes = std::function<std::optional<std::string>(std::u16string_view character)>;

/// Converts `word` to the bytes of a code page, at most `capacity` bytes, truncated at a character
/// boundary. Typographic hyphens and apostrophes become "-" and "'", as dictionaries spell them.
/// Returns "" if any character is missing from the code page: question marks in its place could be
/// mistaken for a word.
std::string ansiWord(std::u16string_view word, std::size_t capacity,
                     const CharacterToBytes& toBytes);

}  // namespace nhw32
