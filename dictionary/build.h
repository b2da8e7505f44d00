#pragma once

#include <filesystem>
#include <ostream>

#include "dictionary/check/source_check.h"
#include "dictionary/console.h"
#include "dictionary/database/writer.h"

namespace dictionary {

/// Builds the database `target` from the CSV file `source` (see csv_reader.h). Lines that cannot be
/// read are skipped. They, progress and a final report go to `log`.
///
/// The database is written to a file beside the target, checked by every rule, and only then
/// renamed to the target: a former database stays in place until the new one is complete. The same
/// source gives the same bytes on every machine. Takes some 15 s and 400 MB of memory for a full
/// dictionary. Throws Failure; the target is unchanged then.
void buildDatabase(const std::filesystem::path& source, const std::filesystem::path& target,
                   std::ostream& log);

/// The last stage of buildDatabase(): writes the content to a temporary file beside `target`,
/// checks it by every rule and against the facts of its source, and renames it to `target`. Broken
/// rules go to `log`, the steps to `progress`. Throws Failure, also if a rule is broken; the target
/// is unchanged and the temporary file is deleted then.
void publishDatabase(const DatabaseContent& content, const SourceFacts& facts,
                     const std::filesystem::path& target, std::ostream& log, Progress& progress);

}  // namespace dictionary
