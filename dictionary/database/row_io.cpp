#include "dictionary/database/row_io.h"

#include <sqlite3.h>

#include "text/utf.h"

namespace dictionary {

RowInserter::RowInserter(sqlite3* connection, const std::string& sql)
    : connection_(connection), statement_(data::prepare(connection, sql)) {}

RowInserter& RowInserter::text(std::u16string_view value) {
  const std::string utf8 = text::toUtf8(value);
  // SQLITE_TRANSIENT: SQLite copies the text, which ends with this function.
  data::check(connection_, sqlite3_bind_text(statement_.get(), ++bound_, utf8.data(),
                                             static_cast<int>(utf8.size()), SQLITE_TRANSIENT));
  return *this;
}

RowInserter& RowInserter::number(std::int64_t value) {
  data::check(connection_, sqlite3_bind_int64(statement_.get(), ++bound_, value));
  return *this;
}

void RowInserter::insert() {
  // Bindings stay after a reset; the next row replaces all of them.
  if (sqlite3_step(statement_.get()) != SQLITE_DONE) data::raise(connection_);
  data::check(connection_, sqlite3_reset(statement_.get()));
  bound_ = 0;
}

// Errors of a reading come from sqlite3_step() in next(); the functions for columns cannot fail,
// except that SQLite returns null or 0 where memory for a conversion is lacking.

RowReader::RowReader(sqlite3* connection, const std::string& sql)
    : connection_(connection), statement_(data::prepare(connection, sql)) {}

bool RowReader::next() {
  const int result = sqlite3_step(statement_.get());
  if (result == SQLITE_ROW) return true;
  if (result != SQLITE_DONE) data::raise(connection_);
  return false;
}

int RowReader::columnCount() const { return sqlite3_column_count(statement_.get()); }

std::string RowReader::columnName(int column) const {
  const char* name = sqlite3_column_name(statement_.get(), column);
  return name == nullptr ? std::string() : std::string(name);
}

std::string_view RowReader::text(int column) const {
  // The length after the text: it is that of the text to which the value was converted.
  const auto* bytes = sqlite3_column_text(statement_.get(), column);
  if (bytes == nullptr) return {};
  const int size = sqlite3_column_bytes(statement_.get(), column);
  return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

std::int64_t RowReader::number(int column) const {
  return sqlite3_column_int64(statement_.get(), column);
}

bool RowReader::isInteger(int column) const {
  return sqlite3_column_type(statement_.get(), column) == SQLITE_INTEGER;
}

bool RowReader::isText(int column) const {
  return sqlite3_column_type(statement_.get(), column) == SQLITE_TEXT;
}

}  // namespace dictionary
