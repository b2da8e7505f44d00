#pragma once

#include <filesystem>

#include "dictionary/check/rules.h"
#include "dictionary/check/source_check.h"

namespace dictionary {

/// Checks a dictionary database by every rule of rules.h: the builder before it puts a file in
/// place, and kkbuild's command "check" for any file. The rules are what the program's lookups and
/// windows rely on; a file that breaks one may hide words or stop a window. Without findings, every
/// headword of the general dictionary that is typed in full is found with all its rows, and every
/// subject dictionary can be chosen and searched. Lists that end with a headword of which not all
/// rows are searched are counted only: a dictionary without any cannot be built.
///
/// `facts`, if not null, are those of the source from which the file was built; the rules about the
/// source are checked only then.
///
/// The file is opened for reading only, and may contain anything: it is read as a hostile file is
/// (data/connection.h), and broken rules are findings, not errors. If the fixed tables are missing
/// or damaged, the other rules are not checked. Takes some seconds and holds all headwords of the
/// general dictionary in memory. Throws Failure if the file does not exist or the engine cannot
/// read it.
CheckResult checkDatabase(const std::filesystem::path& file, const SourceFacts* facts = nullptr);

}  // namespace dictionary
