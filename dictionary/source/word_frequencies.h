#pragma once

#include <cstdint>
#include <filesystem>
#include <istream>
#include <string>
#include <unordered_map>
#include <vector>

/// Frequencies of Chinese words, from which their worth for readers is estimated. No text of the
/// list enters a database.
namespace dictionary {

/// A word of the list.
struct WordFrequency {
  std::u16string word;
  std::uint32_t frequency = 0;
  bool personalName = false;
};

/// Reads a list of lines "word frequency part-of-speech" in UTF-8, separated by blanks; parts of
/// speech that begin with "nr" mark personal names. Returns the words with a Han character, the
/// most frequent first, those of equal frequency in the order of the list. Other lines are skipped.
/// Throws Failure if no line is of that form.
std::vector<WordFrequency> readWordFrequencies(std::istream& stream);
/// The same for a file. Throws Failure also if it cannot be read.
std::vector<WordFrequency> readWordFrequencies(const std::filesystem::path& file);

/// Ranks by frequency, 1 for the most frequent word.
using WordRanks = std::unordered_map<std::u16string, std::uint32_t>;

/// Returns the ranks of all words that are no personal names.
WordRanks rankWords(const std::vector<WordFrequency>& words);

}  // namespace dictionary
