#pragma once

#include <sqlite3.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace support {

/// While it lives, it notes the statements that run on databases opened meanwhile. Only one at a
/// time, and no such database may outlive it.
class StatementWatch {
 public:
  StatementWatch() {
    statements().clear();
    sqlite3_auto_extension(entryPoint());
  }
  ~StatementWatch() { sqlite3_cancel_auto_extension(entryPoint()); }
  StatementWatch(const StatementWatch&) = delete;
  StatementWatch& operator=(const StatementWatch&) = delete;

  /// How many statements that name `part` have run since the watch was made or asked.
  [[nodiscard]] std::ptrdiff_t take(std::string_view part) {
    const auto count = std::ranges::count_if(
        statements(), [&](const std::string& sql) { return sql.find(part) != std::string::npos; });
    statements().clear();
    return count;
  }

 private:
  static std::vector<std::string>& statements() {
    static std::vector<std::string> noted;
    return noted;
  }

  static int note(unsigned int /*event*/, void* /*context*/, void* statement, void* /*sql*/) {
    const char* sql = sqlite3_sql(static_cast<sqlite3_stmt*>(statement));
    if (sql != nullptr) statements().emplace_back(sql);
    return 0;
  }

  static int watch(sqlite3* connection, const char** /*error*/, const void* /*routines*/) {
    return sqlite3_trace_v2(connection, SQLITE_TRACE_STMT, &note, nullptr);
  }

  /// SQLite takes every entry point as a function without arguments.
  static void (*entryPoint())() { return reinterpret_cast<void (*)()>(&watch); }
};

}  // namespace support
