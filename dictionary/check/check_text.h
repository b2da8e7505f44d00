#pragma once

#include <string>
#include <string_view>

#include "dictionary/check/findings.h"

namespace dictionary {

/// Checks a text for characters and markup that no row may hold. `place` names it in a finding.
void checkText(std::u16string_view text, const std::string& place, Findings& findings);

/// Checks that a headword holds nothing that disturbs a search.
void checkSearchable(std::u16string_view word, const std::string& place, Findings& findings);

}  // namespace dictionary
