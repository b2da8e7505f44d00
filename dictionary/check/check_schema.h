#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "dictionary/check/findings.h"
#include "dictionary/database/row_io.h"

struct sqlite3;

namespace dictionary {

/// The column of the catalogue that says whether a dictionary is offered. It may stand anywhere.
inline constexpr std::string_view kIsshowName = "Isshow";

/// Place of the column called `name`, without regard to case; -1 if there is none.
int findColumn(const RowReader& reader, std::string_view name);

/// Checks that the file is undamaged and that the fixed tables are there with their columns.
/// Returns whether they can be read on; otherwise the findings say why not.
bool checkFixedTables(sqlite3* connection, Findings& findings);

/// Checks one subject dictionary's table. Returns whether it can be read on.
bool checkSubjectTable(sqlite3* connection, const std::string& table, Findings& findings);

/// Names of all tables in the file.
std::vector<std::string> tableNames(sqlite3* connection);

}  // namespace dictionary
