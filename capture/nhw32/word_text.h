#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "capture/nhw32/reader.h"
#include "text/readings.h"

/// The word at a place of a text, and how it is passed on in a code page. Portable; all functions
/// are pure but for the functions that they are given.
namespace nhw32 {

/// The readings of a word (see Word), and its range in the text: that of the word that is handed
/// over unasked, otherwise of the first candidate.
struct FoundWord {
  std::u16string text;
  std::vector<std::u16string> candidates;
  text::Range range;
};

/// Returns the word at `index`, nullopt if there is none. Reads as far as text::readingsAt.
std::optional<FoundWord> wordAt(std::u16string_view text, std::size_t index);

/// Returns what is handed over: the first candidate that is a headword, otherwise `word.text`; as
/// text::chooseReading, without places.
std::u16string_view chosenText(const Word& word, const text::IsHeadword& isHeadword);

/// Converts one character (a UTF-16 code unit or a surrogate pair) to the bytes of a code page.
/// Returns nullopt if the code page does not contain the character.
using CharacterToBytes = std::function<std::optional<std::string>(std::u16string_view character)>;

/// Converts `word` to the bytes of a code page, at most `capacity` bytes, truncated at a character
/// boundary. Returns "" if any character is missing from the code page: question marks in its place
/// could be mistaken for a word.
std::string ansiWord(std::u16string_view word, std::size_t capacity,
                     const CharacterToBytes& toBytes);

}  // namespace nhw32
