#pragma once

#include <filesystem>
#include <ostream>

#include "dictionary/check/source_check.h"
#include "dictionary/console.h"
#include "dictionary/database/writer.h"

namespace dictionary {

/// The files that a database is made of. All but the first may be empty paths.
struct SourceFiles {
  std::filesystem::path english = {};          ///< the CSV file, see csv_reader.h
  std::filesystem::path chinese = {};          ///< the Chinese-English source, see cedict_reader.h
  std::filesystem::path wordFrequencies = {};  ///< see word_frequencies.h
  std::filesystem::path terms = {};            ///< the folder of our own list, see term_list.h
};

/// Builds the database `target`. Lines of the CSV file that cannot be read are skipped. They,
/// progress and a final report go to `log`.
///
/// The database is written to a file beside the target, checked by every rule, and only then
/// renamed to the target: a former database stays in place until the new one is complete. The same
/// sources give the same bytes on every machine. Takes some 20 s and 550 MB of memory for a full
/// dictionary. Throws Failure, also if the list of terms has a pair in the wrong folder
/// (misplacedTerms()); the target is unchanged then.
void buildDatabase(const SourceFiles& sources, const std::filesystem::path& target,
                   std::ostream& log);

/// The last stage of buildDatabase(): writes the content to a temporary file beside `target`,
/// checks it by every rule and against the facts of its source, and renames it to `target`. Broken
/// rules go to `log`, the steps to `progress`. Throws Failure, also if a rule is broken; the target
/// is unchanged and the temporary file is deleted then.
void publishDatabase(const DatabaseContent& content, const SourceFacts& facts,
                     const std::filesystem::path& target, std::ostream& log, Progress& progress);

}  // namespace dictionary
