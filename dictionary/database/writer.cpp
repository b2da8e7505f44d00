// The same content gives the same bytes: tables are created and filled in a fixed order, rows in
// the order of their keys, so that pages fill one after the other; nothing is updated or deleted;
// page size and encoding are set, not left to defaults.

#include "dictionary/database/writer.h"

#include <chrono>
#include <cstddef>
#include <fstream>
#include <string>
#include <vector>

#include "data/connection.h"
#include "data/error.h"
#include "dictionary/arrange/block_packing.h"
#include "dictionary/console.h"
#include "dictionary/database/row_io.h"
#include "dictionary/database/schema.h"
#include "dictionary/translation/subjects.h"

namespace dictionary {
namespace {

/// Empties the file, or creates it: SQLite would open a database that is there.
void createEmpty(const std::filesystem::path& file) {
  const std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  if (!stream) throw Failure("cannot write " + displayName(file));
}

/// Writes [edict] or [cdict]: row number from 1, headword, row number of the equivalent in the
/// other table.
void writeHeadwords(sqlite3* connection, const std::string& table,
                    const std::vector<std::u16string>& words,
                    const std::vector<HeadwordRow>& rows) {
  RowInserter inserter(connection, "insert into [" + table + "] values (?, ?, ?)");
  for (std::size_t i = 0; i < rows.size(); ++i) {
    inserter.number(static_cast<std::int64_t>(i + 1)).text(words[rows[i].word]);
    inserter.number(rows[i].link).insert();
  }
}

/// Writes the headword of the last row of each block. [edictidx] has no number column: the program
/// reads it in the text order and counts.
void writeEnglishIndex(sqlite3* connection, const DatabaseContent& content) {
  const std::size_t step = LookupLimits().blockRows;
  RowInserter inserter(connection, "insert into [edictidx] values (?)");
  for (std::size_t row = step; row <= content.general.edict.size(); row += step) {
    inserter.text(content.vocabulary.english[content.general.edict[row - 1].word]).insert();
  }
}

/// Writes the headword of the last row of each block with the number of the block, from 1.
void writeChineseIndex(sqlite3* connection, const DatabaseContent& content) {
  const std::size_t step = LookupLimits().blockRows;
  RowInserter inserter(connection, "insert into [cdictidx] values (?, ?)");
  for (std::size_t row = step; row <= content.general.cdict.size(); row += step) {
    inserter.text(content.vocabulary.chinese[content.general.cdict[row - 1].word]);
    inserter.number(static_cast<std::int64_t>(row / step)).insert();
  }
}

/// Writes a row of [Index] for each subject dictionary that has rows; all are shown, one is the
/// default.
void writeCatalogue(sqlite3* connection, const SubjectTables& subjects) {
  RowInserter inserter(connection, "insert into [Index] values (?, ?, ?, 1, ?)");
  const bool hasDefault = !subjects[static_cast<std::size_t>(kDefaultSubject)].empty();
  std::int64_t id = 0;
  for (std::size_t i = 0; i < kSubjectCount; ++i) {
    if (subjects[i].empty()) continue;
    const SubjectInfo& info = kSubjectInfos[i];
    const bool isDefault = hasDefault ? static_cast<Subject>(i) == kDefaultSubject : id == 0;
    inserter.number(++id).text(std::u16string(info.table.begin(), info.table.end()));
    inserter.text(info.name).number(isDefault ? 1 : 0).insert();
  }
}

/// Creates and fills the table of each subject dictionary that has rows.
void writeSubjects(sqlite3* connection, const SubjectTables& subjects) {
  for (std::size_t i = 0; i < kSubjectCount; ++i) {
    if (subjects[i].empty()) continue;
    const std::string table(kSubjectInfos[i].table);
    data::execute(connection, "create table [" + table + "]" + std::string(kSubjectColumns));
    RowInserter inserter(connection, "insert into [" + table + "] values (?, ?)");
    for (const SubjectRow& row : subjects[i]) inserter.text(row.word).text(row.meaning).insert();
  }
}

void writeTables(sqlite3* connection, const DatabaseContent& content) {
  // A journal in memory: there is nothing to roll back to. Synchronous, so that a file that is
  // renamed to the target is complete on the disk.
  for (const char* pragma : {"pragma page_size=4096", "pragma encoding='UTF-8'",
                             "pragma journal_mode=memory", "pragma synchronous=full"}) {
    data::execute(connection, pragma);
  }
  data::execute(connection, "begin");
  for (const std::string_view sql : kFixedTableSql) data::execute(connection, std::string(sql));
  writeHeadwords(connection, "edict", content.vocabulary.english, content.general.edict);
  writeHeadwords(connection, "cdict", content.vocabulary.chinese, content.general.cdict);
  writeEnglishIndex(connection, content);
  writeChineseIndex(connection, content);
  writeCatalogue(connection, content.subjects);
  writeSubjects(connection, content.subjects);
  data::execute(connection, "commit");
}

}  // namespace

void writeDatabase(const DatabaseContent& content, const std::filesystem::path& file) {
  createEmpty(file);
  try {
    const data::Connection connection =
        data::openConnection(utf8Path(file), data::Access::kWrite, std::chrono::milliseconds(0));
    writeTables(connection.get(), content);
  } catch (const data::Error& error) {
    throw Failure("cannot write " + displayName(file) + ": " + error.engineText());
  }
}

}  // namespace dictionary
