#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "data/connection.h"

/// Writing and reading of many rows: one statement, prepared once. For connections of the builder,
/// which hold a statement open for as long as a table is read; the program reads by
/// data::RecordSet.
namespace dictionary {

/// Inserts rows through one prepared statement. Texts are given in UTF-16 and stored in UTF-8. The
/// connection must outlive the inserter. All operations throw data::Error.
class RowInserter {
 public:
  /// `sql` is an INSERT statement with one "?" for each value of a row.
  RowInserter(sqlite3* connection, const std::string& sql);

  /// Bind the next value of the row, from left to right. Texts are copied.
  RowInserter& text(std::u16string_view value);
  RowInserter& number(std::int64_t value);
  /// Inserts the row, of which every value must be bound, and begins the next.
  void insert();

 private:
  sqlite3* connection_;
  data::Statement statement_;
  int bound_ = 0;
};

/// Reads the rows of a query one by one. Columns are numbered from 0. The connection must outlive
/// the reader. Constructor and next() throw data::Error.
class RowReader {
 public:
  /// Prepares the query; the first row is read by next(). Names and number of the columns are known
  /// before.
  RowReader(sqlite3* connection, const std::string& sql);

  /// Moves to the next row; returns false after the last.
  bool next();

  [[nodiscard]] int columnCount() const;
  /// Returns the column's name in UTF-8; "" for a column that does not exist.
  [[nodiscard]] std::string columnName(int column) const;
  /// Returns the value as UTF-8 text, "" for NULL; valid until next().
  [[nodiscard]] std::string_view text(int column) const;
  /// Returns the value as a number; 0 if it is not a number.
  [[nodiscard]] std::int64_t number(int column) const;
  /// Return whether the value is stored as an integer or as text. To be asked before text() and
  /// number(), which may convert it.
  [[nodiscard]] bool isInteger(int column) const;
  [[nodiscard]] bool isText(int column) const;

 private:
  sqlite3* connection_;
  data::Statement statement_;
};

}  // namespace dictionary
