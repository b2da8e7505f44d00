#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/word_ranges.h"

/// The readings of the word at a place of running text: what may be meant there, in the order in
/// which a dictionary is asked. Texts are UTF-16; lengths and positions count code units. All
/// functions are pure and throw nothing but std::bad_alloc. No reading is longer than kMaxReading
/// (word_ranges.h).
namespace text {

/// Maximum number of readings that are asked for. Each of them costs a query while the pointer
/// rests, and nearly all words have one to three; the longest useful list is that of a word with
/// accents, a hyphen and a possessive ending.
inline constexpr std::size_t kMaxReadings = 8;

/// Maximum number of code units on each side of a place that readingsAt() reads. Farthest away is,
/// of a word that a line's end divides, the digit before an apostrophe before its first part: from
/// the last unit of the second part over the gap, the hyphen and the first part.
inline constexpr std::size_t kMaxReach = (2 * kMaxReading) + kMaxGap + 2;

/// One reading, spelled as in a dictionary (spelled() in word_characters.h), and the half-open
/// range of the text that it stands for: the possessive ending that the word lacks included; of a
/// word that is divided at a line's end, both parts and what is between them.
struct Reading {
  std::u16string word;
  std::size_t begin = 0;
  std::size_t end = 0;
  bool operator==(const Reading&) const = default;
};

struct Readings {
  /// To be asked for, in this order, each once; at most kMaxReadings. English by text::isChinese,
  /// with at least one letter.
  std::vector<Reading> candidates;
  /// To be taken if no candidate is a headword: the word without possessive ending and accents. A
  /// run of Han characters, which is no word to be asked for, is given here alone. None where
  /// letters touch digits: "st" of "1st" is no word.
  std::optional<Reading> otherwise;

  [[nodiscard]] bool empty() const { return candidates.empty() && !otherwise; }
  /// Returns what is to be marked as the word: the range of `otherwise` or, where there is none, of
  /// the first candidate. Not for empty ones.
  [[nodiscard]] Range range() const {
    const Reading& shown = otherwise ? *otherwise : candidates.front();
    return {shown.begin, shown.end};
  }
  bool operator==(const Readings&) const = default;
};

/// Returns the readings of what is at `index`; none for a blank, a quotation mark or punctuation
/// around a word, and past the end. Each reading's range contains `index`. In order:
/// 1. where a line's end divides the word: its parts joined without the hyphen, then with it; both
///    without possessive ending; the part between hyphens that the line's end divides;
/// 2. the run of characters between blanks without the quotation marks, brackets and punctuation
///    around it ("AT&T"), with the full stop after it if one is in it ("e.g.", "U.S."), then
///    without; with the full stop of any other run ("etc."); without possessive ending;
/// 3. the word: letters with single hyphens and apostrophes between them;
/// 4. the word without possessive ending ("man's" is "man");
/// 5. the part of it between hyphens, and that without possessive ending.
/// A reading with accents is followed by the one without. Reads at most kMaxReach units before
/// `index` and as many after it: the cost does not depend on the length of the text.
Readings readingsAt(std::u16string_view text, std::size_t index);

/// Tells whether a dictionary has a word as a headword. May throw std::exception.
using IsHeadword = std::function<bool(std::u16string_view word)>;

/// Returns the first candidate that is a headword, otherwise `readings.otherwise`. No function
/// counts as no for every word; one that throws, for that word and all after it, which are not
/// asked for: a dictionary that fails may take seconds to do so. Throws nothing that the function
/// throws.
std::optional<Reading> chooseReading(const Readings& readings, const IsHeadword& isHeadword);

}  // namespace text
