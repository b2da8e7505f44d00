#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "data/database.h"
#include "data/dialect/dialect.h"

namespace data {

/// One column of the current row.
struct Field {
  std::u16string text;       ///< the value as text; "" for NULL
  std::int64_t integer = 0;  ///< the value as a number: of a text its leading digits; else 0
};

/// The rows of one query, at the first of them to begin with. Rows are read when they are needed,
/// and no operation leaves a statement open that would hold the database. A default-constructed set
/// has no rows.
///
/// All operations throw Error: with a description for the user where the database fails, with
/// SQLITE_MISUSE where the caller asks for what is not there (see each). For one thread (see
/// connection.h).
class RecordSet {
 public:
  RecordSet() = default;
  /// Runs `sql`, a text of the windows in UTF-8 (see translate), and shares the database.
  RecordSet(std::shared_ptr<Database> database, std::string_view sql);
  RecordSet(RecordSet&&) noexcept = default;
  RecordSet& operator=(RecordSet&&) noexcept = default;
  RecordSet(const RecordSet&) = delete;
  RecordSet& operator=(const RecordSet&) = delete;
  ~RecordSet() = default;

  /// Whether there is no row at all.
  [[nodiscard]] bool empty() const { return rows_.cells.empty(); }
  /// Number of rows; reads them all.
  [[nodiscard]] std::size_t recordCount();
  /// Whether the current position is after the last row.
  [[nodiscard]] bool endOfFile() const { return position_ == Position::kEnd; }

  /// Goes to the first row; without rows, to the end.
  void moveFirst();
  /// Goes to the last row, without building those before it where the query scans one table in
  /// its own order; without rows, to the end.
  void moveLast();
  /// Goes to the next row or, from the last one, to the end. At the end it is SQLITE_MISUSE.
  void moveNext();

  /// Value of the current row by column name, without regard to the case of ASCII letters, or by
  /// position from 0. At the end, and where there is no such column, it is SQLITE_MISUSE.
  [[nodiscard]] Field field(std::u16string_view name) const;
  [[nodiscard]] Field field(std::size_t column) const;

  /// Writes one column of the current row to its table, in a transaction of its own that is on the
  /// disk when this returns; the record set shows the new value from then on. Only for queries of
  /// the form "select * from TABLE ...", else it is SQLITE_MISUSE. Nothing is changed where the
  /// file is locked or may not be written, or the row is no longer there.
  void update(std::u16string_view name, std::int64_t value);

  /// Drops the rows that are not read yet; rows already read stay readable.
  void close() { rows_.complete = true; }

 private:
  /// Where the current row is: in rows_, in last_, or nowhere (after the last one).
  enum class Position : std::uint8_t { kRow, kLast, kEnd };

  void readAll();
  void requireQuery() const;
  [[nodiscard]] const std::string& sql() const;
  /// How many columns the query has of its own; the rowid may follow them.
  [[nodiscard]] std::size_t ownColumns() const;
  [[nodiscard]] std::size_t columnNamed(std::u16string_view name) const;
  [[nodiscard]] const Cell& cell(std::size_t column) const;

  std::shared_ptr<Database> database_;
  Query query_;
  bool withRowid_ = false;
  Rows rows_;  ///< from the first on, as far as they are read
  Rows last_;  ///< the last row alone, where it was read before those in between
  Position position_ = Position::kEnd;
  std::size_t row_ = 0;  ///< the current row in rows_ or last_
};

}  // namespace data
