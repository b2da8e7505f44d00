#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "dictionary/check/rules.h"
#include "dictionary/database/row_io.h"

struct sqlite3;

/// Checks of tables and columns, before any row is read. All functions that take a connection throw
/// data::Error if the file cannot be read.
namespace dictionary {

/// Columns of the catalogue [Index] that the windows read by their positions, from 0.
inline constexpr int kTableNameColumn = 1;
inline constexpr int kCnameColumn = 2;
inline constexpr int kDefaultColumn = 4;
/// The column of the catalogue that holds whether a dictionary is offered. Its position is free.
inline constexpr std::string_view kIsshowName = "Isshow";

/// Returns whether two names of tables or columns are equal as SQLite compares them: without regard
/// to the case of ASCII letters.
bool sameName(const std::string& a, std::string_view b);

/// Returns the index of the column called `name` (see sameName); -1 if there is none.
int findColumn(const RowReader& reader, std::string_view name);

/// Checks that the file is undamaged and has the fixed tables with their columns. Returns whether
/// the tables can be read; otherwise the findings name the reasons.
bool checkFixedTables(sqlite3* connection, Findings& findings);

/// Checks the columns of one subject dictionary's table. Returns whether it can be read.
bool checkSubjectTable(sqlite3* connection, const std::string& table, Findings& findings);

/// Returns the names of all tables and views in the file, in binary order.
std::vector<std::string> tableNames(sqlite3* connection);

}  // namespace dictionary
