#pragma once

#include <sqlite3.h>

#include <filesystem>

#include "tests/support/data/temp_folder.h"

namespace support {

/// Code of a plain connection for reading on `file`: what a reader meets that knows nothing of us.
inline int plainRead(const std::filesystem::path& file) {
  sqlite3* connection = nullptr;
  sqlite3_open_v2(utf8Path(file).c_str(), &connection, SQLITE_OPEN_READONLY, nullptr);
  sqlite3_exec(connection, "select count(*) from sqlite_master", nullptr, nullptr, nullptr);
  const int code = sqlite3_extended_errcode(connection);
  sqlite3_close_v2(connection);
  return code;
}

}  // namespace support
