#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

/// Where words begin and end in running text. Texts are UTF-16; positions count code units. All
/// functions are pure, throw nothing, take any index and read a bounded stretch of text around it.
namespace text {

/// Maximum length of a word or run. A longer one is data, not language.
inline constexpr std::size_t kMaxReading = 128;

/// A half-open range of code units, which is not empty.
struct Range {
  std::size_t begin = 0;
  std::size_t end = 0;
  [[nodiscard]] bool contains(std::size_t index) const { return index >= begin && index < end; }
  [[nodiscard]] std::size_t size() const { return end - begin; }
  bool operator==(const Range&) const = default;
};

/// Returns the units of `text` in `range`.
constexpr std::u16string_view in(std::u16string_view text, Range range) {
  return text.substr(range.begin, range.end - range.begin);
}

/// Returns the word that contains `index`: letters with single hyphens and apostrophes between
/// them. Returns nullopt for anything else, past the end, and for a word longer than kMaxReading.
std::optional<Range> wordAt(std::u16string_view text, std::size_t index);

/// Returns the run of Han characters that contains `index`, under the same limits.
std::optional<Range> hanRunAt(std::u16string_view text, std::size_t index);

/// A run of characters that headwords are made of, without the punctuation around it.
struct Run {
  Range range;
  bool stopFollows = false;   ///< whether a full stop comes right after it
  bool hasInnerStop = false;  ///< whether a full stop is in it, after its first character
};

/// Returns the run that contains `index`, or whose following full stop is at `index`. Returns
/// nullopt for punctuation around it, blanks, Han characters, past the end, and for a run that is,
/// with the punctuation around it, longer than kMaxReading.
std::optional<Run> runAt(std::u16string_view text, std::size_t index);

/// Return where the bracket at the first place of `range` is closed in it, and where the one at its
/// last place is opened in it; nullopt if there is no such place. Brackets of all kinds count
/// alike.
std::optional<std::size_t> closingBracket(std::u16string_view text, Range range);
std::optional<std::size_t> openingBracket(std::u16string_view text, Range range);

/// Returns the part of `range` between its hyphens that contains `index`, which is in `range`;
/// nullopt on a hyphen.
std::optional<Range> partAt(std::u16string_view text, Range range, std::size_t index);

/// Returns whether a digit is right before or after `range`, or before the apostrophe before it
/// ("1990's").
bool touchesDigit(std::u16string_view text, Range range);

/// The words before and after a line end that divides a word: the first is followed by a hyphen, or
/// ends with a soft hyphen, and only blanks are around the line end.
struct Division {
  Range left;
  Range right;
};

/// Returns the division of which `word`, as wordAt() returned it, is either part. Returns nullopt
/// where there is none, where digits touch a part, and where more than kMaxGap units are between
/// the parts.
std::optional<Division> divisionAt(std::u16string_view text, Range word);

/// Blanks and line ends inside a divided word: an indentation, in columns of a wide page.
inline constexpr std::size_t kMaxGap = 128;

}  // namespace text
