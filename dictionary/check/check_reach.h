#pragma once

#include "dictionary/check/check.h"
#include "dictionary/check/general_tables.h"

namespace dictionary {

/// Follows the lookups' bound step for every headword of both languages, typed in full, and checks
/// that the rows it searches hold all rows of the headword. Counts the Chinese lists that end in a
/// headword whose rows are cut.
void checkReach(const GeneralTables& tables, CheckResult& result);

}  // namespace dictionary
