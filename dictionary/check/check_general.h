#pragma once

#include <cstddef>

#include "dictionary/check/findings.h"
#include "dictionary/check/general_tables.h"

namespace dictionary {

/// Checks that both tables have the same number of rows and that the lookups reach all of them.
void checkRowCounts(std::size_t english, std::size_t chinese, Findings& findings);

/// Checks the rows of the general dictionary: numbers of rows, order, links, both indexes, and what
/// headwords may be made of.
void checkGeneral(const GeneralTables& tables, Findings& findings);

}  // namespace dictionary
