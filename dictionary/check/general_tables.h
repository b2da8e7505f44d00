#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "dictionary/check/rules.h"

struct sqlite3;

/// The general dictionary in memory, as the checks need it. Rows are counted from 0 here and
/// numbered from 1 in the file.
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
  std::vector<std::u16string> englishIndex;  ///< words of [edictidx], as the program reads them
  std::vector<std::u16string> chineseIndex;  ///< words of [cdictidx], in the order of its rows
};

/// Reads the general dictionary into memory. Values of the wrong kind (row numbers with gaps, texts
/// that are not UTF-8) become findings. Throws data::Error if the file cannot be read.
GeneralTables readGeneralTables(sqlite3* connection, Findings& findings);

/// Returns the headwords of a table, in its order: runs of rows whose words are equal in the text
/// order.
std::vector<HeadwordRun> headwordRuns(const HeadwordTable& table);

/// Returns the name of a row for a finding: "[edict] row 17 «abc»" for the row with index 16.
std::string rowName(const char* table, std::size_t row, const std::u16string& word);

}  // namespace dictionary
