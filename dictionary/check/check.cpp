#include "dictionary/check/check.h"

#include <chrono>

#include "data/connection.h"
#include "data/error.h"
#include "dictionary/check/general.h"
#include "dictionary/check/general_tables.h"
#include "dictionary/check/reach.h"
#include "dictionary/check/schema_check.h"
#include "dictionary/check/subjects_check.h"
#include "dictionary/console.h"

namespace dictionary {
namespace {

CheckResult checkOpened(sqlite3* connection) {
  CheckResult result;
  if (!checkFixedTables(connection, result.findings)) return result;
  const GeneralTables tables = readGeneralTables(connection, result.findings);
  result.pairs = tables.edict.words.size();
  checkGeneral(tables, result.findings);
  checkReach(tables, result);
  checkSubjects(connection, result);
  return result;
}

}  // namespace

CheckResult checkDatabase(const std::filesystem::path& file) {
  requireFile(file);
  try {
    const data::Connection connection =
        data::openConnection(utf8Path(file), data::Access::kRead, std::chrono::seconds(1));
    return checkOpened(connection.get());
  } catch (const data::Error& error) {
    throwUnreadable(file, error);
  }
}

}  // namespace dictionary
