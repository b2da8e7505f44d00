#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "dictionary/check/findings.h"

namespace dictionary {

/// What a check saw.
struct CheckResult {
  Findings findings;
  std::size_t pairs = 0;
  std::size_t englishHeadwords = 0;
  std::size_t chineseHeadwords = 0;
  std::size_t dictionaries = 0;
  std::size_t subjectRows = 0;
  /// Lists shown for a Chinese headword typed in full, and how many of them end with a headword
  /// whose last meanings lie behind the rows searched, so that choosing it shows some only.
  std::size_t chineseLists = 0;
  std::size_t cutLists = 0;
};

/// Checks every rule of the dictionary database. Throws Failure if the file is not there or cannot
/// be read.
CheckResult checkDatabase(const std::filesystem::path& file);

}  // namespace dictionary
