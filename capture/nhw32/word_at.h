#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace nhw32 {

/// The longest run that counts as a word, in UTF-16 units: what is longer is data, not language.
inline constexpr std::size_t kLongestWord = 128;

/// Part of a text; `end` lies just behind it.
struct Range {
  std::size_t begin = 0;
  std::size_t end = 0;
  bool operator==(const Range&) const = default;
};

/// The word that holds the character at `index`: a run of Latin letters with the hyphens and
/// apostrophes between them, or a run of Han characters. None on anything else, behind the text's
/// end, and in a run longer than kLongestWord. Reads at most that far around `index`.
std::optional<Range> wordAt(std::u16string_view text, std::size_t index);

}  // namespace nhw32
