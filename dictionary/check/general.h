#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/check/rules.h"

struct sqlite3;

/// The general dictionary in memory, as the checks need it, and the rules of its rows and of texts
/// in any table. Rows are counted from 0 here and numbered from 1 in the file. The functions that
/// check add what breaks a rule to `findings` and throw nothing but std::bad_alloc.
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

/// Checks a text for characters and markup that no row may contain. `place` names the text in a
/// finding.
void checkText(std::u16string_view text, const std::string& place, Findings& findings);

/// Checks that a headword contains neither a wildcard of LIKE nor a surrogate, which the lookups
/// compare wrongly.
void checkSearchable(std::u16string_view word, const std::string& place, Findings& findings);

/// Checks that both tables have the same number of rows, in whole blocks and not too many: rows
/// after the last index row are never searched.
void checkRowCounts(std::size_t english, std::size_t chinese, Findings& findings);

/// Checks the rows of the general dictionary: their number, order and links, both indexes, and the
/// characters of headwords.
void checkGeneral(const GeneralTables& tables, Findings& findings);

}  // namespace dictionary
