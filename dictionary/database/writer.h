#pragma once

#include <filesystem>

#include "dictionary/arrange/tables.h"
#include "dictionary/arrange/vocabulary.h"

namespace dictionary {

/// Everything that a dictionary database holds.
struct DatabaseContent {
  Vocabulary vocabulary;
  GeneralDictionary general;
  SubjectTables subjects;
};

/// Writes a new database to `file`, replacing what is there: the same bytes for the same content.
/// Subject dictionaries without rows are left out. The first dictionary of the catalogue is the
/// default if that of kDefaultSubject has no rows. Throws Failure; the file is incomplete then.
void writeDatabase(const DatabaseContent& content, const std::filesystem::path& file);

}  // namespace dictionary
