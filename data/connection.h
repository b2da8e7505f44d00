#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace data {

struct ConnectionCloser {
  void operator()(sqlite3* connection) const;
};
struct StatementCloser {
  void operator()(sqlite3_stmt* statement) const;
};
using Connection = std::unique_ptr<sqlite3, ConnectionCloser>;
using Statement = std::unique_ptr<sqlite3_stmt, StatementCloser>;

enum class Access { kRead, kWrite };

/// Opens an existing database file (path in UTF-8; never made anew, never taken for a URI) that may
/// be damaged or ill-meant: nothing in it may run triggers, views or functions of doubt. The text
/// functions are registered, with `isOverdue` (see text_functions.h). An operation waits up to
/// `lockWait` while others hold the file. Throws Error; a file that is no database is noticed by
/// the first statement only.
Connection openConnection(const std::string& file, Access access,
                          std::chrono::milliseconds lockWait, std::function<bool()> isOverdue = {});

/// Throws the connection's last failure as Error.
[[noreturn]] void raise(sqlite3* connection);

/// Throws the connection's last failure unless `result` says that there was none.
void check(sqlite3* connection, int result);

/// Makes ready the one statement of `sql`. Throws Error, also for none and for more than one.
Statement prepare(sqlite3* connection, const std::string& sql);

/// Runs a statement that yields no rows, or whose rows do not matter. Throws Error.
void execute(sqlite3* connection, const std::string& sql);

}  // namespace data
