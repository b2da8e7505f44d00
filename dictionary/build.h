#pragma once

#include <filesystem>
#include <ostream>

namespace dictionary {

/// Builds the database `target` from the CSV file `source`. Bad lines, progress and a final report
/// go to `log`. The database is written to a file beside the target, checked by every rule, and
/// only then renamed to the target: a former database stays in place until the new one is complete.
/// The same source gives the same bytes. Throws Failure; the target is unchanged then.
void buildDatabase(const std::filesystem::path& source, const std::filesystem::path& target,
                   std::ostream& log);

}  // namespace dictionary
