#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "dictionary/gloss/gloss.h"
#include "dictionary/source/cedict_reader.h"

/// The second source as Chinese headwords with their English equivalents.
namespace dictionary {

/// A Chinese headword and what it means.
struct ChineseEntry {
  std::u16string word;  ///< simplified, as chineseHeadword() returns it
  /// Distinct without regard to case, the best first: by value, then in the order of the source,
  /// with the first meaning of a second reading after the second one of the main reading. At least
  /// one.
  std::vector<Gloss> glosses;
};

/// Makes the entries of the records: joins those of one simplified form, and gives a word that only
/// refers to another one the meanings of that. A word has its literal meaning only if it has no
/// other. Words that have nothing or cannot be headwords are left out. The result is in the order
/// of each word's first record; it depends on nothing but `records`.
std::vector<ChineseEntry> chineseEntries(const std::vector<CedictRecord>& records);

/// Reads and cleans the second source. Throws Failure as readCedictRecords() does.
std::vector<ChineseEntry> readCedict(const std::filesystem::path& file);

}  // namespace dictionary
