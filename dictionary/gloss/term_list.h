#pragma once

#include <filesystem>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/translation/subjects.h"

/// Reading our own list of terms (dictionary/terms/): one CSV file a subject, named as its table,
/// and general.csv for words of no subject. In UTF-8, a line for each pair of an English and a
/// Chinese term. The folder "given" in it holds, in the same form, terms that a source gives as
/// well: the list rates them.
namespace dictionary {

/// A pair of the list.
struct Term {
  std::u16string english;
  std::u16string chinese;
  std::optional<Subject> subject;  ///< none for the general dictionary alone
  bool given = false;              ///< from the folder "given"
};

/// Reads the pairs of one subject, or of none. Throws Failure, which names `name` and the line, at
/// a line that is no pair or holds what cannot be a headword.
std::vector<Term> readTerms(std::istream& stream, std::optional<Subject> subject,
                            std::string_view name);

/// Reads all files of the folder, general.csv first, the others by Subject, and after them those
/// of its folder "given", if it has one. Throws Failure as above, if a file has another name, or
/// if a folder or a file cannot be read.
std::vector<Term> readTermList(const std::filesystem::path& folder);

}  // namespace dictionary
