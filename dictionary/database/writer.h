#pragma once

#include <filesystem>

#include "dictionary/arrange/tables.h"
#include "dictionary/arrange/vocabulary.h"

namespace dictionary {

/// Everything that a dictionary database holds, before it is written.
struct DatabaseContent {
  Vocabulary vocabulary;      ///< the words; also of pairs that were not chosen
  GeneralDictionary general;  ///< refers to the vocabulary
  SubjectTables subjects;
};

/// Writes a new database to `file`, replacing what is there: the same bytes for the same content
/// and the same version of SQLite. Writes in one transaction without a journal on disk: `file` is
/// not to be the database in use, but one beside it (temporary_file.h).
///
/// Subject dictionaries without rows are left out. The first dictionary of the catalogue is the
/// default if that of kDefaultSubject has no rows. The content is not checked (check/check.h).
/// Throws Failure; the file is incomplete then.
void writeDatabase(const DatabaseContent& content, const std::filesystem::path& file);

}  // namespace dictionary
