// The order of the checks: first the schema, without which no table can be read; then the general
// dictionary, which is read into memory once for all its rules and for the repeated bound step;
// then the subject dictionaries, row by row; then what readers must find of the source. Every check
// adds what it finds and continues, so that one run names everything that is wrong.

#include "dictionary/check/check.h"

#include <chrono>

#include "data/connection.h"
#include "data/error.h"
#include "dictionary/check/general.h"
#include "dictionary/check/reach.h"
#include "dictionary/check/schema_check.h"
#include "dictionary/check/subjects_check.h"
#include "dictionary/console.h"

namespace dictionary {
namespace {

/// Wait for programs that hold the file, as in the program itself (data::Timeouts).
constexpr std::chrono::seconds kLockWait{1};

/// All checks on an open connection. Throws data::Error if the engine cannot read on.
CheckResult checkOpened(sqlite3* connection, const SourceFacts* facts) {
  CheckResult result;
  if (!checkFixedTables(connection, result.findings)) return result;
  const GeneralTables tables = readGeneralTables(connection, result.findings);
  result.pairs = tables.edict.words.size();
  checkGeneral(tables, result.findings);
  checkReach(tables, result);
  checkSubjects(connection, result);
  checkLabels(tables.cdict, result.findings);
  if (facts != nullptr) {
    checkSourceFacts(connection, *facts, tables, result);
    result.frequentLists = listLengths(tables, facts->frequent);
  }
  return result;
}

}  // namespace

CheckResult checkDatabase(const std::filesystem::path& file, const SourceFacts* facts) {
  requireFile(file);
  try {
    const data::Connection connection =
        data::openConnection(utf8Path(file), data::Access::kRead, kLockWait);
    return checkOpened(connection.get(), facts);
  } catch (const data::Error& error) {
    throwUnreadable(file, error);
  }
}

}  // namespace dictionary
