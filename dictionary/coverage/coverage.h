#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <ostream>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "dictionary/coverage/popup_lookup.h"

namespace dictionary {

/// How many words of a text the popup shows something for.
struct Coverage {
  using Counts = std::array<std::size_t, kShownCount>;  ///< by Shown
  using Words = std::unordered_map<std::u16string, std::size_t>;

  Counts all{};
  Counts lowerCase{};  ///< words of two or more letters without capitals
  /// The words and how often each occurs, by Shown.
  std::array<Words, kShownCount> words;
  /// Places with letters and digits at which no word is handed over, by the letters and digits.
  Words unread;

  /// Adds the figures of another text.
  Coverage& operator+=(const Coverage& other);
};

/// Points at every word of a running text as the capture of words does, one place a word, and looks
/// up what is handed over there (text::chooseReading). Single letters count as words, although no
/// popup opens for them. Throws data::Error where the database cannot be read.
Coverage coverageOf(std::u16string_view text, PopupLookup& lookup);

/// Words that printCoverage() shows of each list at most.
inline constexpr std::size_t kShownWords = 40;

/// Prints the figures of one text: counts, shares and the most frequent words of each class but
/// those with a meaning, at most kShownWords of each. UTF-8.
void printCoverage(const Coverage& coverage, std::ostream& out);

/// Reads each text (running_text.h) and prints its name and its figures; of more than one text also
/// those of all together, at the end, after a line that begins with "all". Throws Failure, before
/// it prints anything, if a file does not exist or the database cannot be read; if a text cannot be
/// read, or contains no word, after those before it.
void reportCoverage(const std::filesystem::path& database,
                    const std::vector<std::filesystem::path>& texts, std::ostream& out);

}  // namespace dictionary
