#include "data/cursor.h"

#include <sqlite3.h>

#include <algorithm>
#include <limits>
#include <utility>

#include "data/dialect/sql_tokens.h"
#include "data/error.h"
#include "data/row_writer.h"
#include "text/utf.h"

namespace data {
namespace {

constexpr std::size_t kAllRows = std::numeric_limits<std::size_t>::max();

Error misuse(const std::string& message) { return {SQLITE_MISUSE, message}; }

}  // namespace

Cursor::Cursor(std::shared_ptr<Database> database, std::string_view sql)
    : database_(std::move(database)), query_(translate(sql)) {
  withRowid_ = !query_.table.empty() && database_->hasRowid(query_.table);
  if (query_.plainScan) {
    rows_ = database_->read(this->sql(), 1);
  } else {
    readAll();
  }
  moveFirst();
}

std::size_t Cursor::count() {
  readAll();
  return rows_.count();
}

void Cursor::moveFirst() {
  row_ = 0;
  place_ = empty() ? Place::kEnd : Place::kRow;
}

void Cursor::moveLast() {
  if (empty()) return;
  if (query_.plainScan && !rows_.complete) {
    last_ = database_->read(sql(), 1, ScanOrder::kBackward);
    row_ = 0;
    place_ = last_.cells.empty() ? Place::kEnd : Place::kLast;
  } else {
    readAll();
    row_ = rows_.count() - 1;
    place_ = Place::kRow;
  }
}

void Cursor::moveNext() {
  if (place_ == Place::kEnd) throw misuse("no row behind the last one");
  if (place_ == Place::kLast) {
    place_ = Place::kEnd;
    return;
  }
  ++row_;
  if (row_ == rows_.count()) readAll();
  if (row_ >= rows_.count()) place_ = Place::kEnd;
}

Field Cursor::field(std::size_t position) const {
  if (position >= ownColumns()) throw misuse("no column " + std::to_string(position));
  const Cell& found = cell(position);
  return {text::toUtf16(found.text), found.integer};
}

void Cursor::update(std::string_view name, std::int64_t value) {
  const std::size_t column = columnNamed(name);
  if (!withRowid_) throw misuse("rows of this query cannot be updated");
  if (place_ == Place::kLast) {
    readAll();
    moveLast();
  }
  const CellAddress address{query_.table, rows_.columns[column], cell(ownColumns()).integer};
  writeCell(database_->file(), address, value, database_->patience().lock);
  rows_.cells[(row_ * rows_.columns.size()) + column] = {std::to_string(value), value};
}

void Cursor::readAll() {
  if (rows_.complete) return;
  rows_ = database_->read(sql(), query_.top.value_or(kAllRows));
  rows_.complete = true;
  if (place_ == Place::kRow && row_ >= rows_.count()) place_ = Place::kEnd;
}

const std::string& Cursor::sql() const { return withRowid_ ? query_.sqlWithRowid : query_.sql; }

std::size_t Cursor::ownColumns() const { return rows_.columns.size() - (withRowid_ ? 1 : 0); }

std::size_t Cursor::columnNamed(std::string_view name) const {
  const auto own = rows_.columns.begin() + static_cast<std::ptrdiff_t>(ownColumns());
  const auto found = std::find_if(rows_.columns.begin(), own, [&](const std::string& column) {
    return sameName(column, name);
  });
  if (found == own) throw misuse("no column " + std::string(name));
  return static_cast<std::size_t>(found - rows_.columns.begin());
}

const Cell& Cursor::cell(std::size_t column) const {
  if (place_ == Place::kEnd) throw misuse("no current row");
  const Rows& rows = place_ == Place::kLast ? last_ : rows_;
  return rows.cells[(row_ * rows.columns.size()) + column];
}

}  // namespace data
