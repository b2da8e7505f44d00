// What the program relies on: [edict], [cdict] and the index tables are read by the SQL texts of
// data/lookup_sql.h and by "select *", so that their columns have to be these and no others. Of the
// catalogue the program reads TableName, Cname and default by position and Isshow by name; other
// columns may be there. Text columns need the dictionary's collation, since SQL texts name none.

#include "dictionary/check/schema_check.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <utility>

#include "data/text_functions.h"
#include "dictionary/database/row_io.h"

namespace dictionary {
namespace {

/// A column and its declared type: text with the dictionary's collation, or integer.
struct Column {
  std::string_view name;
  bool isText;
};

/// A column of the catalogue at a fixed index; others may be between them.
struct CatalogueColumn {
  int index;
  Column column;
};

/// A fixed table with all its columns in their order.
struct Table {
  std::string_view name;
  std::span<const Column> columns;
};

constexpr std::array kEdict = {Column{"eid", false}, Column{"word", true}, Column{"cid", false}};
constexpr std::array kCdict = {Column{"cid", false}, Column{"word", true}, Column{"eid", false}};
constexpr std::array kEdictIdx = {Column{"word", true}};
constexpr std::array kCdictIdx = {Column{"word", true}, Column{"id", false}};
constexpr std::array kCatalogueColumns = {CatalogueColumn{kTableNameColumn, {"TableName", true}},
                                          CatalogueColumn{kCnameColumn, {"Cname", true}},
                                          CatalogueColumn{kDefaultColumn, {"default", false}}};
/// Its position is free because it is read by its name only.
constexpr Column kIsshow = {kIsshowName, false};
constexpr std::array kSubject = {Column{"word", true}, Column{"meaning", true}};

constexpr std::array kTables = {Table{"edict", kEdict}, Table{"cdict", kCdict},
                                Table{"edictidx", kEdictIdx}, Table{"cdictidx", kCdictIdx}};
constexpr std::string_view kCatalogue = "Index";

/// The declared type decides how SQLite compares and orders the column's values.
bool hasRightType(sqlite3* connection, const std::string& table, const std::string& name,
                  bool isText) {
  const char* type = nullptr;
  const char* collation = nullptr;
  const int result = sqlite3_table_column_metadata(connection, nullptr, table.c_str(), name.c_str(),
                                                   &type, &collation, nullptr, nullptr, nullptr);
  if (result != SQLITE_OK || type == nullptr || collation == nullptr) return false;
  if (!isText) return sqlite3_stricmp(type, "integer") == 0;
  return sqlite3_stricmp(type, "text") == 0 && sqlite3_stricmp(collation, data::kTextOrder) == 0;
}

/// A column as found in the file.
struct FoundColumn {
  int index;
  std::string name;
};

/// Checks one column by its name and type.
bool checkColumn(sqlite3* connection, const std::string& table, const FoundColumn& found,
                 const Column& wanted, Findings& findings) {
  std::string example = "[" + table + "] column " + std::to_string(found.index) + ", ";
  example += found.name;
  if (!sameName(found.name, wanted.name)) {
    example += ", should be ";
    example += wanted.name;
  } else if (!hasRightType(connection, table, found.name, wanted.isText)) {
    example += ", is not declared as ";
    example += wanted.isText ? "text collate lexilo" : "integer";
  } else {
    return true;
  }
  findings.add(Rule::kColumns, std::move(example));
  return false;
}

/// Checks that a table has these columns in this order and no others.
bool checkColumns(sqlite3* connection, const std::string& table, std::span<const Column> columns,
                  Findings& findings) {
  const RowReader reader(connection, "select * from [" + table + "]");
  if (reader.columnCount() != static_cast<int>(columns.size())) {
    findings.add(Rule::kColumns, "[" + table + "] has " + std::to_string(reader.columnCount()) +
                                     " columns instead of " + std::to_string(columns.size()));
    return false;
  }
  bool right = true;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const std::string name = reader.columnName(static_cast<int>(i));
    right =
        checkColumn(connection, table, {static_cast<int>(i), name}, columns[i], findings) && right;
  }
  return right;
}

bool checkCatalogueColumns(sqlite3* connection, Findings& findings) {
  const std::string table(kCatalogue);
  const RowReader reader(connection, "select * from [" + table + "]");
  bool right = true;
  for (const auto& [index, column] : kCatalogueColumns) {
    // A missing column has the name "".
    const std::string name = index < reader.columnCount() ? reader.columnName(index) : "";
    right = checkColumn(connection, table, {index, name}, column, findings) && right;
  }
  const int isshow = findColumn(reader, kIsshow.name);
  if (isshow < 0) {
    findings.add(Rule::kColumns, "[" + table + "] has no column " + std::string(kIsshow.name));
    return false;
  }
  return checkColumn(connection, table, {isshow, reader.columnName(isshow)}, kIsshow, findings) &&
         right;
}

/// quick_check reads every page and compares what the pages say about each other, but not indexes
/// with their tables, which would take much longer. It stops after five errors, as many examples as
/// a finding keeps.
bool checkUndamaged(sqlite3* connection, Findings& findings) {
  bool undamaged = true;
  RowReader reader(connection, "pragma quick_check(5)");
  while (reader.next()) {
    if (reader.text(0) == "ok") continue;
    findings.add(Rule::kUndamaged, std::string(reader.text(0)));
    undamaged = false;
  }
  return undamaged;
}

}  // namespace

bool sameName(const std::string& a, std::string_view b) {
  return sqlite3_stricmp(a.c_str(), std::string(b).c_str()) == 0;
}

int findColumn(const RowReader& reader, std::string_view name) {
  for (int column = 0; column < reader.columnCount(); ++column) {
    if (sameName(reader.columnName(column), name)) return column;
  }
  return -1;
}

std::vector<std::string> tableNames(sqlite3* connection) {
  std::vector<std::string> names;
  RowReader reader(connection,
                   "select name from sqlite_schema where type in ('table', 'view') order by name");
  while (reader.next()) names.emplace_back(reader.text(0));
  return names;
}

bool checkFixedTables(sqlite3* connection, Findings& findings) {
  if (!checkUndamaged(connection, findings)) return false;
  const std::vector<std::string> names = tableNames(connection);
  const auto isPresent = [&](std::string_view table) {
    const bool present =
        std::ranges::any_of(names, [&](const std::string& name) { return sameName(name, table); });
    if (!present) findings.add(Rule::kTables, "there is no table [" + std::string(table) + "]");
    return present;
  };
  bool right = isPresent(kCatalogue) && checkCatalogueColumns(connection, findings);
  for (const Table& table : kTables) {
    right = isPresent(table.name) &&
            checkColumns(connection, std::string(table.name), table.columns, findings) && right;
  }
  return right;
}

bool checkSubjectTable(sqlite3* connection, const std::string& table, Findings& findings) {
  return checkColumns(connection, table, kSubject, findings);
}

}  // namespace dictionary
