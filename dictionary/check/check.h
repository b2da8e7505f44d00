#pragma once

#include <filesystem>

#include "dictionary/check/rules.h"

namespace dictionary {

/// Checks a dictionary database by every rule. The file is opened for reading only. If the fixed
/// tables are missing or damaged, the other rules are not checked. Throws Failure if the file is
/// not there or cannot be read.
CheckResult checkDatabase(const std::filesystem::path& file);

}  // namespace dictionary
