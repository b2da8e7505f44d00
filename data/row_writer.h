#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace data {

/// One column of one row of a table, by the number that the engine gives the row.
struct CellAddress {
  std::string table;
  std::string column;
  std::int64_t rowid = 0;
};

/// Writes one number into the database file, in a transaction of its own that is on the disk when
/// this returns. Waits up to `lockWait` for others that hold the file. Throws Error, described for
/// the user and with nothing changed, where the file is locked or may not be written or the row is
/// no longer there.
void writeCell(const std::string& file, const CellAddress& address, std::int64_t value,
               std::chrono::milliseconds lockWait);

}  // namespace data
