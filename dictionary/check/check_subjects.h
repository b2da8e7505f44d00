#pragma once

#include "dictionary/check/check.h"

struct sqlite3;

namespace dictionary {

/// Checks the catalogue, the tables that it names, and that there are no others.
void checkSubjects(sqlite3* connection, CheckResult& result);

}  // namespace dictionary
