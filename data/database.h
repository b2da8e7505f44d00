#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/connection.h"

namespace data {

/// One value as text in UTF-8 ("" for NULL) and as a number, converted as SQLite does (the leading
/// digits of a text; 0 without any).
struct Cell {
  std::string text;
  std::int64_t integer = 0;
};

/// Rows that were read: the names of their columns, and their cells row after row.
struct Rows {
  std::vector<std::string> columns;
  std::vector<Cell> cells;  ///< columns.size() for each row
  bool complete = false;    ///< whether the query has no more rows than these

  [[nodiscard]] std::size_t count() const {
    return columns.empty() ? 0 : cells.size() / columns.size();
  }
};

/// The end of a table at which a scan of it begins.
enum class ScanOrder { kForward, kBackward };

/// Limits for one operation. After both of them and the release of its memory an operation still
/// ends before Windows considers the window hung, which is after 5 s without a message.
struct Timeouts {
  std::chrono::milliseconds query{3500};  ///< a query that runs longer ends with an error
  std::chrono::milliseconds lock{1000};   ///< wait for other programs that hold the file
};

/// Memory of the engine in bytes, at most: several times the cached pages and the sorted rows of
/// the dictionary.
inline constexpr std::int64_t kMaxMemory = std::int64_t{64} << 20U;

/// Pages of the file that a connection for searches keeps in memory, in KiB: a search reads the
/// largest subject dictionary (some 6 MB) from end to end, and the next one finds its pages there.
inline constexpr int kSearchCacheKiB = 16384;

/// A database file, open for reading only. For one thread (see connection.h); not to be moved,
/// since the engine keeps its address. Every operation runs its statement as far as rows are wanted
/// and closes it, so that nothing locks the file between operations. All operations throw Error
/// with a description for the user: SQLITE_INTERRUPT after Timeouts::query, SQLITE_BUSY after
/// Timeouts::lock. From the first Database on the engine takes at most kMaxMemory in the whole
/// process, other connections included; a query that needs more fails with SQLITE_NOMEM.
class Database {
 public:
  /// Opens `file`, a path in UTF-8. Whether it is a database is found by the first operation.
  explicit Database(std::string file, Timeouts timeouts = {});
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;
  ~Database() = default;

  /// Path and limits as given: an update opens a connection of its own by them (RecordSet::update).
  [[nodiscard]] const std::string& file() const { return file_; }
  [[nodiscard]] Timeouts timeouts() const { return timeouts_; }

  /// Sets how much of the file is kept in memory once it is read, in KiB; without a call it is
  /// SQLITE_DEFAULT_CACHE_SIZE (cmake/sqlite.cmake).
  void setCacheKiB(int kibibytes);

  /// Returns the first `limit` rows of one SQL text in SQLite's own dialect. kBackward scans a
  /// table from its end; it is for queries that scan one table only (see Query::plainScan).
  Rows read(const std::string& sql, std::size_t limit, ScanOrder order = ScanOrder::kForward);

  /// Returns whether there is a table of that name with a rowid, the number that the engine gives a
  /// row. Tables "without rowid" and views have none.
  bool hasRowid(const std::string& table);

 private:
  [[nodiscard]] bool isOverdue() const;

  template <typename Operation>
  auto run(Operation operation);
  template <typename Operation>
  auto withRecovery(Operation operation);
  void rollBackJournal() const;

  std::string file_;
  Timeouts timeouts_;
  std::chrono::steady_clock::time_point deadline_;
  Connection connection_;
};

}  // namespace data
