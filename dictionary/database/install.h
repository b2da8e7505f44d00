#pragma once

#include <filesystem>
#include <ostream>

#include "dictionary/console.h"
#include "dictionary/database/database_writer.h"

namespace dictionary {

/// Writes the content to a file beside `target`, checks that file, and lets it take the target's
/// place. Broken rules are told to `log`. Throws Failure; the target is as before then.
void installDatabase(const DatabaseContent& content, const std::filesystem::path& target,
                     std::ostream& log, Progress& progress);

}  // namespace dictionary
