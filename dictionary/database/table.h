#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "data/connection.h"

namespace dictionary {

/// Adds rows to one table. Texts are given in UTF-16 and stored in UTF-8. All operations throw
/// data::Error.
class RowInserter {
 public:
  /// `sql` is an INSERT with one "?" for each value of a row.
  RowInserter(sqlite3* connection, const std::string& sql);

  RowInserter& text(std::u16string_view value);
  RowInserter& number(std::int64_t value);
  /// Ends the row.
  void insert();

 private:
  sqlite3* connection_;
  data::Statement statement_;
  int bound_ = 0;
};

/// Reads the rows of a query one by one. All operations throw data::Error.
class RowReader {
 public:
  RowReader(sqlite3* connection, const std::string& sql);

  /// Goes to the next row; false behind the last.
  bool next();

  [[nodiscard]] int columnCount() const;
  [[nodiscard]] std::string columnName(int column) const;
  /// Value as text in UTF-8, "" for NULL; valid until next().
  [[nodiscard]] std::string_view text(int column) const;
  [[nodiscard]] std::int64_t number(int column) const;
  /// Whether the value is stored as a number or as a text.
  [[nodiscard]] bool isInteger(int column) const;
  [[nodiscard]] bool isText(int column) const;

 private:
  sqlite3* connection_;
  data::Statement statement_;
};

}  // namespace dictionary
