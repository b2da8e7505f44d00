#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/connection.h"

namespace data {

/// One value as text in UTF-8 ("" for NULL) and as a number (0 where it is none).
struct Cell {
  std::string text;
  std::int64_t integer = 0;
};

/// Rows that were read: the names of their columns, and their cells row after row.
struct Rows {
  std::vector<std::string> columns;
  std::vector<Cell> cells;
  bool complete = false;  ///< whether the query has no more rows than these

  [[nodiscard]] std::size_t count() const {
    return columns.empty() ? 0 : cells.size() / columns.size();
  }
};

enum class ScanOrder { kForward, kBackward };

/// How long an operation may take. After both and the release of what it holds it still ends before
/// Windows takes the window for hung, which is after 5 s.
struct Timeouts {
  std::chrono::milliseconds query{3500};  ///< a query that runs longer ends with an error
  std::chrono::milliseconds lock{1000};   ///< wait for other programs that hold the file
};

/// What the engine may take, in bytes: several times what pages in memory and sorted rows of the
/// dictionary need.
inline constexpr std::int64_t kMaxMemory = std::int64_t{64} << 20U;

/// Pages of the file that a connection for searches keeps in memory, in KiB: a search reads the
/// largest subject dictionary (some 6 MB) from end to end, and the next one finds its pages there.
inline constexpr int kSearchCacheKiB = 16384;

/// A database file, open for reading only, for one thread (see connection.h). Every operation runs
/// its statement to the end of what is asked and closes it, so that nothing holds the file between
/// operations. All operations throw Error with a description for the user. From the first Database
/// on the engine takes at most kMaxMemory in the whole process, connections opened otherwise
/// included; a query that needs more fails with SQLITE_NOMEM.
class Database {
 public:
  /// `file` is the path in UTF-8.
  explicit Database(std::string file, Timeouts timeouts = {});
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;
  ~Database() = default;

  [[nodiscard]] const std::string& file() const { return file_; }
  [[nodiscard]] Timeouts timeouts() const { return timeouts_; }

  /// Keeps up to so many KiB of the file's pages in memory from here on, each from when it is first
  /// read; 256 otherwise.
  void setCacheKiB(int kibibytes);

  /// The first `limit` rows of one SQL text in SQLite's own dialect. kBackward scans a table from
  /// its end; it is for queries that scan one table only (see Query::plainScan).
  Rows read(const std::string& sql, std::size_t limit, ScanOrder order = ScanOrder::kForward);

  /// Whether there is a table of that name whose rows are numbered by the engine.
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
