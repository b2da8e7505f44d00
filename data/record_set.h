#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace data {

class Cursor;

/// One column of the current row.
struct Field {
  std::u16string text;       ///< the value as text; "" for NULL
  std::int64_t integer = 0;  ///< the value as a number: of a text its leading digits; else 0
};

/// The rows of one query, at the first of them to begin with. Rows are fetched when they are
/// needed, and no operation leaves anything behind that would hold the database. All operations
/// throw Error; a default-constructed set has no rows.
class RecordSet {
 public:
  RecordSet();
  explicit RecordSet(std::unique_ptr<Cursor> cursor);
  ~RecordSet();
  RecordSet(RecordSet&& other) noexcept;
  RecordSet& operator=(RecordSet&& other) noexcept;
  RecordSet(const RecordSet&) = delete;
  RecordSet& operator=(const RecordSet&) = delete;

  /// Whether there is no row at all.
  [[nodiscard]] bool empty();
  /// Number of rows; fetches them all.
  [[nodiscard]] std::size_t recordCount();
  /// Whether the current position lies behind the last row.
  [[nodiscard]] bool endOfFile();

  /// Goes to the first row; without rows, to the end.
  void moveFirst();
  /// Goes to the last row, without building those before it where the query scans one table in
  /// its own order; without rows, to the end.
  void moveLast();
  /// Goes to the next row or, from the last one, to the end. Fails at the end.
  void moveNext();

  /// Value of the current row by column name, without regard to the case of ASCII letters, or by
  /// position from 0. Fails at the end and where there is no such column.
  [[nodiscard]] Field field(std::u16string_view name);
  [[nodiscard]] Field field(std::size_t position);

  /// Writes one column of the current row to its table, at once; the record set shows the new value
  /// from then on. Only for queries of the form "select * from TABLE ...".
  void update(std::u16string_view name, std::int64_t value);

  /// Gives up the rows that are not fetched yet; those fetched stay.
  void close();

 private:
  Cursor& cursor();

  std::unique_ptr<Cursor> cursor_;
};

}  // namespace data
