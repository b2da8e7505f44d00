#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "dictionary/check/findings.h"

struct sqlite3;

namespace dictionary {

/// The rows of [edict] or [cdict] in their stored order.
struct HeadwordTable {
  std::vector<std::u16string> words;
  std::vector<std::int64_t> links;
};

/// A headword's rows: from `first` to before `end`, counted from 0.
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

/// Reads the general dictionary; values that are none (row numbers out of step, texts that are no
/// UTF-8) become findings.
GeneralTables readGeneralTables(sqlite3* connection, Findings& findings);

/// The headwords of a table: runs of rows whose words are equal.
std::vector<HeadwordRun> headwordRuns(const HeadwordTable& table);

/// "[edict] row 17 «abc»", with the row counted from 0.
std::string rowName(const char* table, std::size_t row, const std::u16string& word);

}  // namespace dictionary
