// Recovery after a killed writer: a program that is ended in the middle of an update leaves its
// rollback journal ("kk.dat-journal") beside the file. Until the journal is rolled back the file
// cannot be read, and a connection for reading may not write: its statements fail with
// SQLITE_READONLY_ROLLBACK. Then the file is opened once for writing and read from, by which the
// engine rolls the journal back, and the operation is repeated once.
//
// Being overdue: the engine polls isOverdue() by its progress handler, the text functions poll it
// while they compare (text_functions.cpp), and read() asks once more at the end.

#include "data/database.h"

#include <sqlite3.h>

#include <optional>
#include <utility>

namespace data {
namespace {

/// Steps of the engine's virtual machine after which it calls the progress handler, which reads the
/// clock: some 0.1 ms.
constexpr int kStepsBetweenPolls = 1000;

/// While it exists, the engine scans the tables of queries without ORDER BY from their end.
class ScopedBackwardScan {
 public:
  explicit ScopedBackwardScan(sqlite3* connection) : connection_(connection) { set(1); }
  ScopedBackwardScan(const ScopedBackwardScan&) = delete;
  ScopedBackwardScan& operator=(const ScopedBackwardScan&) = delete;
  ~ScopedBackwardScan() { set(0); }

 private:
  void set(int on) const {
    sqlite3_db_config(connection_, SQLITE_DBCONFIG_REVERSE_SCANORDER, on, nullptr);
  }
  sqlite3* connection_;
};

/// Lifts allowReadingOnly from the connection while it exists.
class ScopedUnrestricted {
 public:
  explicit ScopedUnrestricted(sqlite3* connection) : connection_(connection) {
    sqlite3_set_authorizer(connection_, nullptr, nullptr);
  }
  ScopedUnrestricted(const ScopedUnrestricted&) = delete;
  ScopedUnrestricted& operator=(const ScopedUnrestricted&) = delete;
  ~ScopedUnrestricted() { allowReadingOnly(connection_); }

 private:
  sqlite3* connection_;
};

/// The type is asked for first: SQLite does not define it after a conversion. Likewise the length
/// is asked for after the text, which may have been converted from a number.
Cell cellAt(sqlite3_stmt* statement, int column) {
  if (sqlite3_column_type(statement, column) == SQLITE_NULL) return {};
  const std::int64_t integer = sqlite3_column_int64(statement, column);
  const void* text = sqlite3_column_text(statement, column);
  if (text == nullptr) throw Error(SQLITE_NOMEM, sqlite3_errstr(SQLITE_NOMEM));
  const auto bytes = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
  return {std::string(static_cast<const char*>(text), bytes), integer};
}

std::vector<std::string> columnNames(sqlite3_stmt* statement) {
  const int count = sqlite3_column_count(statement);
  std::vector<std::string> names;
  names.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    names.emplace_back(sqlite3_column_name(statement, i));
  }
  return names;
}

/// `complete` is set only where the statement was seen to end, not where `limit` rows were read.
Rows readRows(sqlite3* connection, const std::string& sql, std::size_t limit) {
  const Statement statement = prepare(connection, sql);
  Rows rows{columnNames(statement.get()), {}, false};
  if (rows.columns.empty()) throw Error(SQLITE_MISUSE, "SQL text that is no query");
  const int columns = static_cast<int>(rows.columns.size());
  for (std::size_t count = 0; count < limit; ++count) {
    const int result = sqlite3_step(statement.get());
    if (result == SQLITE_DONE) {
      rows.complete = true;
      return rows;
    }
    if (result != SQLITE_ROW) raise(connection);
    for (int i = 0; i < columns; ++i) rows.cells.push_back(cellAt(statement.get(), i));
  }
  return rows;
}

}  // namespace

Database::Database(std::string file, Timeouts timeouts)
    : file_(std::move(file)),
      timeouts_(timeouts),
      connection_(describingFailures(file_, Access::kRead, [&] {
        return openConnection(file_, Access::kRead, timeouts.lock, [this] { return isOverdue(); });
      })) {
  sqlite3_hard_heap_limit64(kMaxMemory);
  allowReadingOnly(connection_.get());
  sqlite3_progress_handler(
      connection_.get(), kStepsBetweenPolls,
      [](void* database) { return static_cast<const Database*>(database)->isOverdue() ? 1 : 0; },
      this);
}

bool Database::isOverdue() const { return std::chrono::steady_clock::now() > deadline_; }

template <typename Operation>
auto Database::run(Operation operation) {
  return describingFailures(file_, Access::kRead, [&] { return withRecovery(operation); });
}

template <typename Operation>
auto Database::withRecovery(Operation operation) {
  deadline_ = std::chrono::steady_clock::now() + timeouts_.query;
  try {
    return operation();
  } catch (const Error& error) {
    if (error.code() != SQLITE_READONLY_ROLLBACK) throw;
  }
  rollBackJournal();
  return operation();
}

void Database::setCacheKiB(int kibibytes) {
  run([&] {
    // No text of the windows may set anything; this one is our own.
    const ScopedUnrestricted allowed(connection_.get());
    execute(connection_.get(), "pragma cache_size=-" + std::to_string(kibibytes));
  });
}

Rows Database::read(const std::string& sql, std::size_t limit, ScanOrder order) {
  return run([&] {
    std::optional<ScopedBackwardScan> backward;
    if (order == ScanOrder::kBackward) backward.emplace(connection_.get());
    Rows rows = readRows(connection_.get(), sql, limit);
    // The collation of an overdue query calls all texts equal: its rows are wrong.
    if (isOverdue()) throw Error(SQLITE_INTERRUPT, sqlite3_errstr(SQLITE_INTERRUPT));
    return rows;
  });
}

bool Database::hasRowid(const std::string& table) {
  return run([&] {
    // SQLITE_ERROR is the answer for a table or column that does not exist.
    const int result =
        sqlite3_table_column_metadata(connection_.get(), "main", table.c_str(), "rowid", nullptr,
                                      nullptr, nullptr, nullptr, nullptr);
    if (result != SQLITE_OK && result != SQLITE_ERROR) raise(connection_.get());
    return result == SQLITE_OK;
  });
}

void Database::rollBackJournal() const {
  const Connection writer = openConnection(file_, Access::kWrite, timeouts_.lock);
  // Opening alone touches no page: the first read does, and finds the journal.
  execute(writer.get(), "select 1 from sqlite_master limit 1");
}

}  // namespace data
