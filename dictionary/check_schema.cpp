#include "dictionary/check_schema.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <utility>

#include "data/text_functions.h"
#include "dictionary/table.h"

namespace dictionary {
namespace {

struct Column {
  std::string_view name;  ///< "" where the name is free
  bool isText;
};

struct Table {
  std::string_view name;
  std::span<const Column> columns;
};

constexpr std::array kEdict = {Column{"eid", false}, Column{"word", true}, Column{"cid", false}};
constexpr std::array kCdict = {Column{"cid", false}, Column{"word", true}, Column{"eid", false}};
constexpr std::array kEdictIdx = {Column{"word", true}};
constexpr std::array kCdictIdx = {Column{"word", true}, Column{"id", false}};
constexpr std::array kIndex = {Column{"", false}, Column{"TableName", true}, Column{"Cname", true},
                               Column{"Isshow", false}, Column{"default", false}};
constexpr std::array kSubject = {Column{"word", true}, Column{"meaning", true}};

constexpr std::array kTables = {Table{"edict", kEdict}, Table{"cdict", kCdict},
                                Table{"edictidx", kEdictIdx}, Table{"cdictidx", kCdictIdx},
                                Table{"Index", kIndex}};

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
    const std::string wanted(columns[i].name.empty() ? name : columns[i].name);
    std::string example = "[" + table + "] column " + std::to_string(i) + ", ";
    example += name;
    if (sqlite3_stricmp(name.c_str(), wanted.c_str()) != 0) {
      example += ", should be ";
      example += wanted;
    } else if (!hasRightType(connection, table, name, columns[i].isText)) {
      example += ", is not declared as ";
      example += columns[i].isText ? "text collate lexilo" : "integer";
    } else {
      continue;
    }
    findings.add(Rule::kColumns, std::move(example));
    right = false;
  }
  return right;
}

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
  bool right = true;
  for (const Table& table : kTables) {
    const std::string wanted(table.name);
    const bool present = std::ranges::any_of(names, [&](const std::string& name) {
      return sqlite3_stricmp(name.c_str(), wanted.c_str()) == 0;
    });
    if (!present) {
      findings.add(Rule::kTables, "there is no table [" + wanted + "]");
      right = false;
    } else if (!checkColumns(connection, wanted, table.columns, findings)) {
      right = false;
    }
  }
  return right;
}

bool checkSubjectTable(sqlite3* connection, const std::string& table, Findings& findings) {
  return checkColumns(connection, table, kSubject, findings);
}

}  // namespace dictionary
