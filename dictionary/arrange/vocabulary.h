#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace dictionary {

/// How much a pair is worth when not all of them find room, the most valuable first.
enum class Tier : std::uint8_t {
  kImportantFirst,  ///< first equivalent of a word with a mark of importance
  kImportant,       ///< its further ones
  kFirst,           ///< first equivalent of any other word
  kOrdinary,        ///< its further ones
  kInflectedFirst,  ///< first equivalent of an inflected form
  kInflected,       ///< its further ones
  kOnly,            ///< first equivalent of a word that has only names or web equivalents
  kWebFirst,        ///< first web equivalent of a word that has others
  kName,            ///< any other name
  kWeb,             ///< any other web equivalent
};

inline constexpr std::size_t kTierCount = 10;

/// An English headword and a Chinese equivalent, as positions in the vocabulary's lists.
struct Pair {
  std::uint32_t english = 0;
  std::uint32_t chinese = 0;
  Tier tier = Tier::kWeb;
  std::uint8_t position = 0;  ///< place among the headword's equivalents, 255 for all behind
};

/// All pairs that could stand in the general dictionary.
struct Vocabulary {
  std::vector<std::u16string> english;  ///< distinct, in the text order
  std::vector<std::u16string> chinese;  ///< distinct, in the text order
  std::vector<Pair> pairs;              ///< distinct, by English, then by Chinese headword
};

}  // namespace dictionary
