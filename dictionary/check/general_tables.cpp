// The kinds of the values are checked while they are read, since afterwards they are gone: SQLite
// stores any kind of value in any column, and converts it when it is asked for another.

#include "dictionary/check/general.h"

#include <limits>

#include "data/lookup_sql.h"
#include "dictionary/database/row_io.h"
#include "dictionary/source/characters.h"
#include "text/order.h"
#include "text/utf.h"

namespace dictionary {
namespace {

/// The program keeps row numbers in 32 bits.
bool fits32Bits(std::int64_t number) {
  return number >= std::numeric_limits<std::int32_t>::min() &&
         number <= std::numeric_limits<std::int32_t>::max();
}

/// The text of a column; a finding unless it is a text in UTF-8 and not empty.
std::u16string readText(const RowReader& reader, int column, const std::string& place,
                        Findings& findings) {
  const bool isText = reader.isText(column);
  const std::string_view bytes = reader.text(column);
  if (!isText || bytes.empty() || !isUtf8(bytes)) {
    findings.add(Rule::kValues, place + " has no proper text");
  }
  return text::toUtf16(bytes);
}

/// The number of a column; a finding unless it is a 32-bit integer.
std::int64_t readNumber(const RowReader& reader, int column, const std::string& place,
                        Findings& findings) {
  if (!reader.isInteger(column) || !fits32Bits(reader.number(column))) {
    findings.add(Rule::kValues, place + " has no proper number");
  }
  return reader.number(column);
}

HeadwordTable readHeadwords(sqlite3* connection, const std::string& name, Findings& findings) {
  HeadwordTable table;
  RowReader reader(connection, "select * from [" + name + "]");
  while (reader.next()) {
    const std::string place = "[" + name + "] row " + std::to_string(table.words.size() + 1);
    table.words.push_back(readText(reader, 1, place, findings));
    table.links.push_back(readNumber(reader, 2, place, findings));
    if (reader.number(0) != static_cast<std::int64_t>(table.words.size())) {
      findings.add(Rule::kRowNumbers, place + " has number " + std::to_string(reader.number(0)));
    }
  }
  return table;
}

/// By the program's own query: [edictidx] has no number, so that its order is that of its words.
std::vector<std::u16string> readEnglishIndex(sqlite3* connection, Findings& findings) {
  std::vector<std::u16string> words;
  RowReader reader(connection, text::toUtf8(data::kIndexQuery));
  while (reader.next()) {
    const std::string place = "[edictidx] row " + std::to_string(words.size() + 1);
    words.push_back(readText(reader, 0, place, findings));
  }
  return words;
}

/// In the order of the numbers, which are the rowids. They must count the blocks.
std::vector<std::u16string> readChineseIndex(sqlite3* connection, Findings& findings) {
  std::vector<std::u16string> words;
  RowReader reader(connection, "select * from [cdictidx]");
  while (reader.next()) {
    const std::string place = "[cdictidx] row " + std::to_string(words.size() + 1);
    words.push_back(readText(reader, 0, place, findings));
    const std::int64_t number = readNumber(reader, 1, place, findings);
    if (number != static_cast<std::int64_t>(words.size())) {
      findings.add(Rule::kChineseIndex, place + " has number " + std::to_string(number));
    }
  }
  return words;
}

}  // namespace

GeneralTables readGeneralTables(sqlite3* connection, Findings& findings) {
  return {readHeadwords(connection, "edict", findings),
          readHeadwords(connection, "cdict", findings), readEnglishIndex(connection, findings),
          readChineseIndex(connection, findings)};
}

std::vector<HeadwordRun> headwordRuns(const HeadwordTable& table) {
  std::vector<HeadwordRun> runs;
  for (std::size_t row = 0; row < table.words.size(); ++row) {
    if (row == 0 || !text::equal(table.words[row], table.words[row - 1]))
      runs.push_back({row, row});
    runs.back().end = row + 1;
  }
  return runs;
}

std::string rowName(const char* table, std::size_t row, const std::u16string& word) {
  return std::string("[") + table + "] row " + std::to_string(row + 1) + " «" + text::toUtf8(word) +
         "»";
}

}  // namespace dictionary
