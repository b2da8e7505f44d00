#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "data/connection.h"

namespace dictionary {

/// Inserts rows through one prepared statement. Texts are given in UTF-16 and stored in UTF-8. The
/// connection must outlive the inserter. All operations throw data::Error.
class RowInserter {
 public:
  /// `sql` is an INSERT statement with one "?" for each value of a row.
  RowInserter(sqlite3* connection, const std::string& sql);

  /// Binds the next value of the row.
  RowInserter& text(std::u16string_view value);
  RowInserter& number(std::int64_t value);
  /// Inserts the row and begins the next.
  void insert();

 private:
  sqlite3* connection_;
  data::Statement statement_;
  int bound_ = 0;
};

/// Reads the rows of a query one by one. Columns are numbered from 0. The connection must outlive
/// the reader. All operations throw data::Error.
class RowReader {
 public:
  RowReader(sqlite3* connection, const std::string& sql);

  /// Moves to the next row; returns false after the last.
  bool next();

  [[nodiscard]] int columnCount() const;
  /// UTF-8; "" for a column that does not exist.
  [[nodiscard]] std::string columnName(int column) const;
  /// The value as UTF-8 text, "" for NULL; valid until next().
  [[nodiscard]] std::string_view text(int column) const;
  /// The value as a number, 0 for what is none.
  [[nodiscard]] std::int64_t number(int column) const;
  /// Returns whether the value is stored as an integer or as text, before any conversion.
  [[nodiscard]] bool isInteger(int column) const;
  [[nodiscard]] bool isText(int column) const;

 private:
  sqlite3* connection_;
  data::Statement statement_;
};

}  // namespace dictionary
