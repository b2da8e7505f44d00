#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace dictionary {

/// What the quick lookup window shows for a typed word.
struct LookupResult {
  std::vector<std::u16string> headwords;  ///< the list
  std::u16string meaning;                 ///< the pane's text for the first of them, lines by CR LF
};

/// Looks a word up as the quick lookup window does, with the same queries, and chooses the first
/// headword of the list. Both members of the result are empty if there is none. The file is opened
/// for reading only. Throws Failure if the window would not look the text up (blank, or English
/// with a leading wildcard), or if the database is not there or cannot be read.
LookupResult lookUp(const std::filesystem::path& database, std::u16string_view word);

}  // namespace dictionary
