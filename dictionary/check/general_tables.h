#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "dictionary/check/rules.h"

struct sqlite3;

namespace dictionary {

/// The rows of [edict] or [cdict] in their stored order.
struct HeadwordTable {
  std::vector<std::u16string> words;
  std::vector<std::int64_t> links;  ///< the row numbers of the other halves, not checked
};

/// The rows of one headword: indexes from `first` to before `end`, from 0.
struct HeadwordRun {
  std::size_t first = 0;
  std::size_t end = 0;
};

/// The general dictionary as read from a file.
struct GeneralTables {
  HeadwordTable edict;
  HeadwordTable cdict;
  std::vector<std::u16string> englishIndex;
  std::vector<std::u16string> chineseIndex;
};

/// Reads the general dictionary into memory. Values of the wrong kind (row numbers with gaps, texts
/// that are not UTF-8) become findings. Throws data::Error if the file cannot be read.
GeneralTables readGeneralTables(sqlite3* connection, Findings& findings);

/// The headwords of a table: runs of rows whose words are equal in the text order.
std::vector<HeadwordRun> headwordRuns(const HeadwordTable& table);

/// "[edict] row 17 «abc»" for the row with index 16.
std::string rowName(const char* table, std::size_t row, const std::u16string& word);

}  // namespace dictionary
