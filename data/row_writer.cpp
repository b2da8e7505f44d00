#include "data/row_writer.h"

#include <sqlite3.h>

#include "data/connection.h"
#include "data/error.h"
#include "data/error_text.h"

namespace data {
namespace {

std::string quotedName(const std::string& name) {
  std::string quoted = "\"";
  for (const char c : name) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

void write(const std::string& file, const CellAddress& address, std::int64_t value,
           std::chrono::milliseconds lockWait) {
  const Connection connection = openConnection(file, Access::kWrite, lockWait);
  execute(connection.get(), "pragma synchronous=full");
  execute(connection.get(), "begin immediate");
  execute(connection.get(), "update " + quotedName(address.table) + " set " +
                                quotedName(address.column) + "=" + std::to_string(value) +
                                " where rowid=" + std::to_string(address.rowid));
  if (sqlite3_changes(connection.get()) != 1) {
    throw Error(SQLITE_NOTFOUND, "row to be updated is not there any more");
  }
  execute(connection.get(), "commit");
}

}  // namespace

void writeCell(const std::string& file, const CellAddress& address, std::int64_t value,
               std::chrono::milliseconds lockWait) {
  describingFailures(file, Access::kWrite, [&] { write(file, address, value, lockWait); });
}

}  // namespace data
