#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "dictionary/check/general_tables.h"
#include "dictionary/check/rules.h"

/// Rules of the general dictionary's rows, and of texts in any table. All functions add what breaks
/// a rule to `findings` and throw nothing but std::bad_alloc.
namespace dictionary {

/// Checks a text for characters and markup that no row may contain. `place` names the text in a
/// finding.
void checkText(std::u16string_view text, const std::string& place, Findings& findings);

/// Checks that a headword contains neither a wildcard of LIKE nor a surrogate, which the lookups
/// compare wrongly.
void checkSearchable(std::u16string_view word, const std::string& place, Findings& findings);

/// Checks that both tables have the same number of rows, in whole blocks and not too many: rows
/// after the last index row are never searched.
void checkRowCounts(std::size_t english, std::size_t chinese, Findings& findings);

/// Checks the rows of the general dictionary: their number, order and links, both indexes, and the
/// characters of headwords.
void checkGeneral(const GeneralTables& tables, Findings& findings);

}  // namespace dictionary
