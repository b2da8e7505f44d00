#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "data/database.h"
#include "data/dialect/dialect.h"
#include "data/record_set.h"

namespace data {

/// A walk through the rows of one query. A plain scan of one table may be long, so only its first
/// row is read at once; the last is read by itself when it is asked for, all others when one of
/// them is. The rows of any other query are read at once.
class Cursor {
 public:
  /// Runs `sql`, a text of the windows in UTF-8. Throws Error.
  Cursor(std::shared_ptr<Database> database, std::string_view sql);

  [[nodiscard]] bool empty() const { return rows_.cells.empty(); }
  [[nodiscard]] bool atEnd() const { return place_ == Place::kEnd; }
  std::size_t count();

  void moveFirst();
  void moveLast();
  void moveNext();

  [[nodiscard]] Field field(std::string_view name) const { return field(columnNamed(name)); }
  [[nodiscard]] Field field(std::size_t position) const;
  void update(std::string_view name, std::int64_t value);

  /// Takes the rows read so far for all.
  void close() { rows_.complete = true; }

 private:
  /// Where the current row is: among rows_, in last_, or nowhere (behind the last one).
  enum class Place { kRow, kLast, kEnd };

  void readAll();
  [[nodiscard]] const std::string& sql() const;
  /// How many columns the query has of its own; the rowid may stand behind them.
  [[nodiscard]] std::size_t ownColumns() const;
  [[nodiscard]] std::size_t columnNamed(std::string_view name) const;
  [[nodiscard]] const Cell& cell(std::size_t column) const;

  std::shared_ptr<Database> database_;
  Query query_;
  bool withRowid_ = false;
  Rows rows_;
  Rows last_;
  Place place_ = Place::kEnd;
  std::size_t row_ = 0;
};

}  // namespace data
