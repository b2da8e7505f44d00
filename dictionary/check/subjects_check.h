#pragma once

#include "dictionary/check/rules.h"

struct sqlite3;

namespace dictionary {

/// Checks the catalogue of subject dictionaries, the rows of every table that it names, and that
/// there are no other tables. Sets the counts of dictionaries and their rows. The fixed tables must
/// have passed checkFixedTables(). Throws data::Error if the file cannot be read.
void checkSubjects(sqlite3* connection, CheckResult& result);

}  // namespace dictionary
