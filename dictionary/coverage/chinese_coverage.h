#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <ostream>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "dictionary/source/word_frequencies.h"

/// How many of the most frequent Chinese words are headwords.
namespace dictionary {

/// Numbers of most frequent words of which a share is printed.
inline constexpr std::array<std::size_t, 4> kChineseShares = {1'000, 5'000, 10'000, 20'000};

/// The words of two or more characters that are no personal names, and which of them are missing.
struct ChineseCoverage {
  std::size_t words = 0;                ///< as many as the last of kChineseShares, or all
  std::vector<std::u16string> missing;  ///< without a row, the most frequent first
  std::vector<std::size_t> ranks;       ///< of those, among the words counted, from 1

  /// Returns how many of the `first` most frequent words are missing.
  [[nodiscard]] std::size_t missingAmong(std::size_t first) const;
};

/// Looks the words up in the set of all Chinese headwords. `words` are in the order of
/// readWordFrequencies().
ChineseCoverage chineseCoverage(const std::vector<WordFrequency>& words,
                                const std::unordered_set<std::u16string>& headwords);

/// Prints the shares, and the most frequent words that are missing.
void printChineseCoverage(const ChineseCoverage& coverage, std::ostream& out);

/// Reads the list and the database and prints what is missing of the list. Throws Failure if one
/// of them cannot be read.
void reportChineseCoverage(const std::filesystem::path& database, const std::filesystem::path& list,
                           std::ostream& out);

}  // namespace dictionary
