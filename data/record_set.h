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
  std::int64_t integer = 0;  ///< the value as a number; of a text its leading digits, otherwise 0
};

/// The rows of one query and a current position: a row, or the end, which is after the last row.
/// Rows are read when they are needed (see record_set.cpp), and no operation leaves a
/// statement open that would lock the database. A default-constructed set has no rows.
///
/// All operations throw Error: with a description for the user where the database fails, with
/// SQLITE_MISUSE where the caller asks for something that does not exist. For one thread (see
/// connection.h).
class RecordSet {
 public:
  RecordSet() = default;
  /// Runs `sql`, in UTF-8 and in the dialect of the windows (see translate), and goes to the first
  /// row. Shares the database, and keeps it open for as long as the set exists.
  RecordSet(std::shared_ptr<Database> database, std::string_view sql);
  RecordSet(RecordSet&&) noexcept = default;
  RecordSet& operator=(RecordSet&&) noexcept = default;
  RecordSet(const RecordSet&) = delete;
  RecordSet& operator=(const RecordSet&) = delete;
  ~RecordSet() = default;

  /// Returns whether there is no row at all.
  [[nodiscard]] bool empty() const { return rows_.cells.empty(); }
  /// Returns the number of rows; reads them all.
  [[nodiscard]] std::size_t recordCount();
  /// Returns whether the current position is the end.
  [[nodiscard]] bool endOfFile() const { return position_ == Position::kEnd; }

  /// Goes to the first row; without rows, to the end.
  void moveFirst();
  /// Goes to the last row, without reading those before it where the query scans one table in its
  /// own order; without rows, to the end.
  void moveLast();
  /// Goes to the next row or, from the last one, to the end. At the end it is SQLITE_MISUSE.
  void moveNext();

  /// Returns a value of the current row by column name, without regard to the case of ASCII
  /// letters, or by position from 0. At the end, and for a column that does not exist, it is
  /// SQLITE_MISUSE.
  [[nodiscard]] Field field(std::u16string_view name) const;
  [[nodiscard]] Field field(std::size_t column) const;

  /// Writes one column of the current row to its table, in a transaction of its own that is on the
  /// disk when this returns; the record set shows the new value from then on. For queries of the
  /// form "select * from TABLE ..." only, otherwise it is SQLITE_MISUSE. Nothing is changed where
  /// it throws: SQLITE_BUSY after Timeouts::lock, SQLITE_NOTFOUND for a row that was deleted, or
  /// the engine's code for a file that cannot be written.
  void update(std::u16string_view name, std::int64_t value);

  /// Drops the rows that are not read yet; rows already read stay readable.
  void close() { rows_.complete = true; }

 private:
  /// Where the current row is: in rows_, in last_, or nowhere.
  enum class Position : std::uint8_t { kRow, kLast, kEnd };

  void readAll();
  void requireQuery() const;
  [[nodiscard]] const std::string& sql() const;
  /// Number of the query's own columns; the rowid may follow them.
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
