#pragma once

#include "dictionary/findings.h"
#include "dictionary/general_tables.h"

namespace dictionary {

/// Checks the rows of the general dictionary: numbers of rows, order, links, both indexes, and what
/// headwords may be made of.
void checkGeneral(const GeneralTables& tables, Findings& findings);

}  // namespace dictionary
