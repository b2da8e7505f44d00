#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace dictionary {

/// The result of a lookup, as the quick lookup window shows it for a typed word.
struct LookupResult {
  std::vector<std::u16string> headwords;  ///< the list, in its order
  std::u16string meaning;  ///< the pane's text for the first of them; lines end with CR LF
};

/// Looks a word up as the quick lookup window does, with the same functions and queries, and
/// chooses the first headword of the list. Shows without the program, and on any system, what a
/// database contains. `word` is as typed: it is trimmed, and its quotes are doubled here. Both
/// members of the result are empty if no headword follows it.
///
/// The file is opened for reading only. Throws Failure if the window would not look the text up
/// (blank, or English with a leading wildcard), or if the database does not exist or cannot be
/// read.
LookupResult lookUp(const std::filesystem::path& database, std::u16string_view word);

}  // namespace dictionary
