#include "data/record_set.h"

#include <sqlite3.h>

#include <utility>

#include "data/cursor.h"
#include "data/error.h"
#include "text/utf.h"

namespace data {

RecordSet::RecordSet() = default;
RecordSet::RecordSet(std::unique_ptr<Cursor> cursor) : cursor_(std::move(cursor)) {}
RecordSet::~RecordSet() = default;
RecordSet::RecordSet(RecordSet&& other) noexcept = default;
RecordSet& RecordSet::operator=(RecordSet&& other) noexcept = default;

bool RecordSet::empty() { return !cursor_ || cursor_->empty(); }

std::size_t RecordSet::recordCount() { return cursor_ ? cursor_->count() : 0; }

bool RecordSet::endOfFile() { return !cursor_ || cursor_->atEnd(); }

void RecordSet::moveFirst() {
  if (cursor_) cursor_->moveFirst();
}

void RecordSet::moveLast() {
  if (cursor_) cursor_->moveLast();
}

void RecordSet::moveNext() { cursor().moveNext(); }

Field RecordSet::field(std::u16string_view name) { return cursor().field(text::toUtf8(name)); }

Field RecordSet::field(std::size_t position) { return cursor().field(position); }

void RecordSet::update(std::u16string_view name, std::int64_t value) {
  cursor().update(text::toUtf8(name), value);
}

void RecordSet::close() {
  if (cursor_) cursor_->close();
}

Cursor& RecordSet::cursor() {
  if (!cursor_) throw Error(SQLITE_MISUSE, "no query has been run");
  return *cursor_;
}

}  // namespace data
