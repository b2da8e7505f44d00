#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "data/data_control.h"
#include "data/text_functions.h"
#include "tests/support/data/temp_folder.h"

namespace support {

/// A connection for making and changing databases, with the dictionary's text functions.
class Writer {
 public:
  explicit Writer(const std::filesystem::path& file) {
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    if (sqlite3_open_v2(utf8Path(file).c_str(), &connection_, flags, nullptr) != SQLITE_OK) fail();
    data::registerTextFunctions(connection_);
  }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;
  ~Writer() { sqlite3_close_v2(connection_); }

  void run(const std::string& sql) {
    if (sqlite3_exec(connection_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) fail();
  }

  /// The first value that `sql` yields.
  std::int64_t number(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(connection_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) fail();
    sqlite3_step(statement);
    const std::int64_t value = sqlite3_column_int64(statement, 0);
    sqlite3_finalize(statement);
    return value;
  }

 private:
  [[noreturn]] void fail() { throw std::runtime_error(sqlite3_errmsg(connection_)); }

  sqlite3* connection_ = nullptr;
};

/// Makes `file` from SQL statements.
inline void makeDatabase(const std::filesystem::path& file, const std::string& sql) {
  Writer(file).run("begin;" + sql + ";commit");
}

/// The connection string for `file`, put together as the program does it.
inline std::u16string connectionStringFor(const std::filesystem::path& file) {
  return data::connectionString(file.u16string());
}

/// A data control for `file` with the rows of `sql`.
inline data::DataControl opened(const std::filesystem::path& file, std::u16string_view sql) {
  data::DataControl control;
  control.setConnectionString(connectionStringFor(file));
  control.setRecordSource(sql);
  control.refresh();
  return control;
}

/// The values of one column, from the first row to the last.
inline std::vector<std::u16string> column(data::RecordSet& rows, std::u16string_view name) {
  std::vector<std::u16string> values;
  for (rows.moveFirst(); !rows.endOfFile(); rows.moveNext()) {
    values.push_back(rows.field(name).text);
  }
  return values;
}

}  // namespace support
