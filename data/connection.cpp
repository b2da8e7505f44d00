// Opening, and what is done against a hostile file or text: the engine's defensive switches, small
// limits and, for reading, an authorizer. The engine asks the authorizer while it prepares a
// statement, so that a refused text never runs.
//
// Statement tails: the engine prepares the first statement of a text and returns where the rest
// begins. The rest is prepared in turn, up to the end of the text: SQLite makes no statement of
// comments, blanks and semicolons, and anything else is a second statement, which is refused. So no
// tokens are needed here, and a text that only SQLite understands is judged by SQLite.

#include "data/connection.h"

#include <sqlite3.h>

#include <string_view>
#include <utility>

#include "data/text_functions.h"

namespace data {
namespace {

/// Ceilings for one statement and one value: well above what the dictionary needs (its longest
/// meaning has some 200 characters, and the longest text that can be typed into a box 98,301
/// bytes), well below what would hurt.
struct Ceiling {
  int what;
  int limit;
};
constexpr Ceiling kCeilings[] = {
    {SQLITE_LIMIT_LENGTH, 100'000},
    {SQLITE_LIMIT_SQL_LENGTH, 500'000},
    {SQLITE_LIMIT_COLUMN, 100},
    {SQLITE_LIMIT_EXPR_DEPTH, 100},
    {SQLITE_LIMIT_COMPOUND_SELECT, 10},
    {SQLITE_LIMIT_VDBE_OP, 25'000},
    {SQLITE_LIMIT_FUNCTION_ARG, 8},
    {SQLITE_LIMIT_ATTACHED, 0},
    {SQLITE_LIMIT_LIKE_PATTERN_LENGTH, kMaxPatternBytes},
    {SQLITE_LIMIT_VARIABLE_NUMBER, 8},
    {SQLITE_LIMIT_TRIGGER_DEPTH, 1},
    {SQLITE_LIMIT_WORKER_THREADS, 0},
};

void switchTo(sqlite3* connection, int option, int value) {
  check(connection, sqlite3_db_config(connection, option, value, nullptr));
}

/// Follows SQLite's advice for files from an untrusted source (its page "Defense Against The Dark
/// Arts"). All switches hold for the connection, none is stored in the file.
void harden(sqlite3* connection) {
  switchTo(connection, SQLITE_DBCONFIG_DEFENSIVE, 1);
  for (const int option :
       {SQLITE_DBCONFIG_TRUSTED_SCHEMA, SQLITE_DBCONFIG_ENABLE_TRIGGER, SQLITE_DBCONFIG_ENABLE_VIEW,
        SQLITE_DBCONFIG_ENABLE_ATTACH_CREATE, SQLITE_DBCONFIG_ENABLE_ATTACH_WRITE}) {
    switchTo(connection, option, 0);
  }
  for (const Ceiling& ceiling : kCeilings) {
    sqlite3_limit(connection, ceiling.what, ceiling.limit);
  }
  // A damaged page is an error, not a read beyond it.
  execute(connection, "pragma cell_size_check=on");
}

bool startsWith(const char* name, std::string_view lowerCase) {
  return sqlite3_strnicmp(name, lowerCase.data(), static_cast<int>(lowerCase.size())) == 0;
}

/// Returns whether `name` is not one of those that the engine keeps for its schema and for
/// table-valued functions.
bool isOrdinaryTable(const char* name) {
  return !startsWith(name, "sqlite_") && !startsWith(name, "pragma_") && !startsWith(name, "json_");
}

/// The engine calls this for each action of a statement while it is prepared. For SQLITE_READ
/// `first` names the table, for SQLITE_FUNCTION `second` names the function. Anything that is not
/// listed, such as SQLITE_RECURSIVE or SQLITE_PRAGMA, is denied.
int authorize(void* /*context*/, int action, const char* first, const char* second,
              const char* /*database*/, const char* /*trigger*/) {
  const auto allowIf = [](bool allowed) { return allowed ? SQLITE_OK : SQLITE_DENY; };
  switch (action) {
    case SQLITE_SELECT:
      return SQLITE_OK;
    case SQLITE_READ:
      return allowIf(first != nullptr && isOrdinaryTable(first));
    case SQLITE_FUNCTION:
      return allowIf(second != nullptr && sqlite3_stricmp(second, "like") == 0);
    default:
      return SQLITE_DENY;
  }
}

/// Returns whether `sql`, the rest of a text, holds a statement; one that cannot be prepared
/// counts.
bool holdsStatement(sqlite3* connection, const char* sql) {
  while (*sql != '\0') {
    sqlite3_stmt* prepared = nullptr;
    const int result = sqlite3_prepare_v2(connection, sql, -1, &prepared, &sql);
    const Statement owner(prepared);
    if (result != SQLITE_OK || prepared != nullptr) return true;
  }
  return false;
}

}  // namespace

void ConnectionCloser::operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }

void StatementCloser::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

Connection openConnection(const std::string& file, Access access,
                          std::chrono::milliseconds lockWait, std::function<bool()> isOverdue) {
  // To SQLite these are not files: a temporary database on disk, and one in memory.
  if (file.empty() || file == ":memory:") {
    throw Error(SQLITE_CANTOPEN, sqlite3_errstr(SQLITE_CANTOPEN));
  }
  const int flags = access == Access::kRead ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
  sqlite3* opened = nullptr;
  const int result = sqlite3_open_v2(file.c_str(), &opened, flags | SQLITE_OPEN_EXRESCODE, nullptr);
  // Also after a failure there is a connection, which holds the message and has to be closed.
  Connection connection(opened);
  check(opened, result);
  check(opened, sqlite3_busy_timeout(opened, static_cast<int>(lockWait.count())));
  harden(opened);
  registerTextFunctions(opened, std::move(isOverdue));
  return connection;
}

void allowReadingOnly(sqlite3* connection) {
  check(connection, sqlite3_set_authorizer(connection, &authorize, nullptr));
}

Statement prepare(sqlite3* connection, const std::string& sql) {
  // The engine would stop there and run the beginning alone.
  if (sql.find('\0') != std::string::npos) {
    throw Error(SQLITE_MISUSE, "SQL text with a null character");
  }
  sqlite3_stmt* prepared = nullptr;
  const char* tail = nullptr;
  const int result = sqlite3_prepare_v2(connection, sql.c_str(), static_cast<int>(sql.size()) + 1,
                                        &prepared, &tail);
  Statement statement(prepared);
  check(connection, result);
  if (!statement) throw Error(SQLITE_MISUSE, "SQL text without a statement");
  if (holdsStatement(connection, tail)) {
    throw Error(SQLITE_ERROR, "SQL text with more than one statement");
  }
  return statement;
}

void execute(sqlite3* connection, const std::string& sql) {
  const Statement statement = prepare(connection, sql);
  int result = SQLITE_ROW;
  while (result == SQLITE_ROW) result = sqlite3_step(statement.get());
  if (result != SQLITE_DONE) raise(connection);
}

}  // namespace data
