#include "data/read_only_rules.h"

#include <sqlite3.h>

#include <algorithm>
#include <string_view>

#include "data/connection.h"
#include "data/dialect/sql_tokens.h"

namespace data {
namespace {

bool startsWith(std::string_view name, std::string_view prefix) {
  return sameName(name.substr(0, prefix.size()), prefix);
}

/// The names that the engine keeps for its schema and for tables that are functions in truth.
bool isOrdinaryTable(std::string_view name) {
  return !startsWith(name, "sqlite_") && !startsWith(name, "pragma_") && !startsWith(name, "json_");
}

/// What the engine asks for each thing that a statement would do. For SQLITE_READ the first detail
/// names the table, for SQLITE_FUNCTION the second one names the function.
int authorize(void* /*context*/, int action, const char* first, const char* second,
              const char* /*database*/, const char* /*trigger*/) {
  const auto allowIf = [](bool allowed) { return allowed ? SQLITE_OK : SQLITE_DENY; };
  switch (action) {
    case SQLITE_SELECT:
      return SQLITE_OK;
    case SQLITE_READ:
      return allowIf(first != nullptr && isOrdinaryTable(first));
    case SQLITE_FUNCTION:
      return allowIf(second != nullptr && sameName(second, "like"));
    default:
      return SQLITE_DENY;
  }
}

}  // namespace

void allowReadingOnly(sqlite3* connection) {
  check(connection, sqlite3_set_authorizer(connection, &authorize, nullptr));
}

}  // namespace data
