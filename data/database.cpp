#include "data/database.h"

#include <sqlite3.h>

#include <optional>
#include <utility>

namespace data {
namespace {

/// The clock is read each time the engine has taken so many of its steps: some 0.1 ms.
constexpr int kStepsBetweenPolls = 1000;

/// Has the connection scan tables without an order of their own from the end, while it exists.
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

/// A program that was killed in the middle of an update leaves a journal behind that has to be
/// rolled back before the file can be read, which a connection for reading cannot do.
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
    // The collation of an overdue query took texts for equal: its rows are wrong.
    if (isOverdue()) throw Error(SQLITE_INTERRUPT, sqlite3_errstr(SQLITE_INTERRUPT));
    return rows;
  });
}

bool Database::hasRowid(const std::string& table) {
  return run([&] {
    const int result =
        sqlite3_table_column_metadata(connection_.get(), "main", table.c_str(), "rowid", nullptr,
                                      nullptr, nullptr, nullptr, nullptr);
    if (result != SQLITE_OK && result != SQLITE_ERROR) raise(connection_.get());
    return result == SQLITE_OK;
  });
}

void Database::rollBackJournal() const {
  const Connection writer = openConnection(file_, Access::kWrite, timeouts_.lock);
  execute(writer.get(), "select 1 from sqlite_master limit 1");
}

}  // namespace data
