// When rows are read. A plain scan of one table may yield many rows (up to 10,600 of [cdictidx] at
// each Chinese keystroke), of which a window often needs the first or the last alone. So its first
// row is read at once, its last one by a backward scan of its own when moveLast() asks for it, and
// all of them when any other is asked for. The rows of any other query are read at once.
//
// Each of these runs the query anew, so that no statement stays open: an open one would lock the
// file against updates. Rows may be written by another program in between; a set shows what each
// reading found.
//
// Updates need to name their row: for "select * from TABLE" the query is run with the table's rowid
// as one more column (Query::sqlWithRowid), which is hidden from the caller.

#include "data/record_set.h"

#include <sqlite3.h>

#include <algorithm>
#include <limits>
#include <utility>

#include "data/connection.h"
#include "text/characters.h"
#include "text/utf.h"

namespace data {
namespace {

constexpr std::size_t kAllRows = std::numeric_limits<std::size_t>::max();

Error misuse(const std::string& message) { return {SQLITE_MISUSE, message}; }

/// Returns whether a column's name in UTF-8 equals `name` but for the case of ASCII letters.
/// Compares without converting, which would cost as much as reading the field.
bool isName(std::string_view column, std::u16string_view name) {
  const text::Utf8Units units(column);
  std::size_t position = 0;
  for (const char16_t wanted : name) {
    if (position == units.size()) return false;
    const text::Unit unit = units.at(position);
    if (text::lowerAscii(unit.value) != text::lowerAscii(wanted)) return false;
    position += unit.length;
  }
  return position == units.size();
}

std::string quotedName(const std::string& name) {
  std::string quoted = "\"";
  for (const char c : name) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

/// One column of one row of a table; the row by its rowid.
struct CellAddress {
  std::string table;
  std::string column;
  std::int64_t rowid = 0;
};

/// Writes through a connection of its own: the Database's is read-only. An exception before the
/// commit closes the connection, which rolls the transaction back.
void write(const std::string& file, const CellAddress& address, std::int64_t value,
           std::chrono::milliseconds lockWait) {
  const Connection connection = openConnection(file, Access::kWrite, lockWait);
  execute(connection.get(), "pragma synchronous=full");
  // Takes the lock for writing at once, where the engine waits for it; raising a read lock later
  // might fail without waiting.
  execute(connection.get(), "begin immediate");
  execute(connection.get(), "update " + quotedName(address.table) + " set " +
                                quotedName(address.column) + "=" + std::to_string(value) +
                                " where rowid=" + std::to_string(address.rowid));
  if (sqlite3_changes(connection.get()) != 1) {
    throw Error(SQLITE_NOTFOUND, "row to be updated is not there any more");
  }
  execute(connection.get(), "commit");
}

}  // namespace

RecordSet::RecordSet(std::shared_ptr<Database> database, std::string_view sql)
    : database_(std::move(database)), query_(translate(sql)) {
  withRowid_ = !query_.table.empty() && database_->hasRowid(query_.table);
  if (query_.plainScan) {
    rows_ = database_->read(this->sql(), 1);
  } else {
    readAll();
  }
  moveFirst();
}

std::size_t RecordSet::recordCount() {
  readAll();
  return rows_.count();
}

void RecordSet::moveFirst() {
  row_ = 0;
  position_ = empty() ? Position::kEnd : Position::kRow;
}

void RecordSet::moveLast() {
  if (empty()) return;
  if (query_.plainScan && !rows_.complete) {
    last_ = database_->read(sql(), 1, ScanOrder::kBackward);
    row_ = 0;
    position_ = last_.cells.empty() ? Position::kEnd : Position::kLast;
  } else {
    readAll();
    row_ = rows_.count() - 1;
    position_ = Position::kRow;
  }
}

void RecordSet::moveNext() {
  requireQuery();
  if (position_ == Position::kEnd) throw misuse("no row after the last one");
  if (position_ == Position::kLast) {
    position_ = Position::kEnd;
    return;
  }
  ++row_;
  if (row_ == rows_.count()) readAll();
  if (row_ >= rows_.count()) position_ = Position::kEnd;
}

Field RecordSet::field(std::u16string_view name) const { return field(columnNamed(name)); }

Field RecordSet::field(std::size_t column) const {
  requireQuery();
  if (column >= ownColumns()) throw misuse("no column " + std::to_string(column));
  const Cell& found = cell(column);
  return {text::toUtf16(found.text), found.integer};
}

void RecordSet::update(std::u16string_view name, std::int64_t value) {
  const std::size_t column = columnNamed(name);
  if (!withRowid_) throw misuse("rows of this query cannot be updated");
  // The new value is kept in rows_, where further readings of this set find it.
  if (position_ == Position::kLast) {
    readAll();
    moveLast();
  }
  const CellAddress address{query_.table, rows_.columns[column], cell(ownColumns()).integer};
  describingFailures(database_->file(), Access::kWrite,
                     [&] { write(database_->file(), address, value, database_->timeouts().lock); });
  rows_.cells[(row_ * rows_.columns.size()) + column] = {std::to_string(value), value};
}

void RecordSet::readAll() {
  if (!database_ || rows_.complete) return;
  // The limit is kept here as well as in the SQL text, where a comment in the user's input might
  // hide it.
  rows_ = database_->read(sql(), query_.top.value_or(kAllRows));
  rows_.complete = true;
  // Rows may have been deleted since the first one was read.
  if (position_ == Position::kRow && row_ >= rows_.count()) position_ = Position::kEnd;
}

void RecordSet::requireQuery() const {
  if (!database_) throw misuse("no query has been run");
}

const std::string& RecordSet::sql() const { return withRowid_ ? query_.sqlWithRowid : query_.sql; }

std::size_t RecordSet::ownColumns() const { return rows_.columns.size() - (withRowid_ ? 1 : 0); }

std::size_t RecordSet::columnNamed(std::u16string_view name) const {
  requireQuery();
  const auto own = rows_.columns.begin() + static_cast<std::ptrdiff_t>(ownColumns());
  const auto found = std::find_if(rows_.columns.begin(), own,
                                  [&](const std::string& column) { return isName(column, name); });
  if (found == own) throw misuse("no column " + text::toUtf8(name));
  return static_cast<std::size_t>(found - rows_.columns.begin());
}

const Cell& RecordSet::cell(std::size_t column) const {
  if (position_ == Position::kEnd) throw misuse("no current row");
  const Rows& rows = position_ == Position::kLast ? last_ : rows_;
  return rows.cells[(row_ * rows.columns.size()) + column];
}

}  // namespace data
