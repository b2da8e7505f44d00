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
  std::u16string text;        ///< the value as text; "" for NULL
  std::int64_t integer = 0;   ///< the value as a number; 0 where it is none
};

/// The rows of one query. Rows are fetched when they are needed; the statement behind them is
/// closed as soon as they are all read, or by close(). All operations throw Error.
class RecordSet {
 public:
  RecordSet();
  explicit RecordSet(std::unique_ptr<Cursor> cursor);
  ~RecordSet();
  RecordSet(RecordSet&&) noexcept;
  RecordSet& operator=(RecordSet&&) noexcept;

  /// Whether there is no row at all; fetches at most one.
  [[nodiscard]] bool empty();
  /// Number of rows; fetches them all.
  [[nodiscard]] std::size_t recordCount();
  /// Whether the current position lies behind the last row.
  [[nodiscard]] bool endOfFile();

  void moveFirst();
  /// Goes to the last row without building those before it where the query has no order of its own
  /// (a backward scan); moveFirst() then starts over.
  void moveLast();
  void moveNext();

  /// Value of the current row by column name, without regard to case, or by position from 0.
  [[nodiscard]] Field field(std::u16string_view name);
  [[nodiscard]] Field field(std::size_t position);

  /// Writes one column of the current row to its table, at once; the record set shows the new value
  /// from then on. Only for queries of the form "select * from TABLE ...".
  void update(std::u16string_view name, std::int64_t value);

  /// Lets go of the statement and of rows that are not read yet; those read stay.
  void close();

 private:
  std::unique_ptr<Cursor> cursor_;
};

}  // namespace data
