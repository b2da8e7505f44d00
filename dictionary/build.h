#pragma once

#include <filesystem>
#include <ostream>

namespace dictionary {

/// Builds the database `target` from the file `source`. Steps and a report go to `log`. The
/// database is made in a file beside the target, checked, and then takes the target's place: a
/// former database stays until the new one is complete. Throws Failure; the target is as before
/// then.
void buildDatabase(const std::filesystem::path& source, const std::filesystem::path& target,
                   std::ostream& log);

}  // namespace dictionary
