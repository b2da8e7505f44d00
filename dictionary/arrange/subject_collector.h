#pragma once

#include <array>
#include <string>
#include <vector>

#include "dictionary/translation/entry.h"
#include "dictionary/translation/subjects.h"

namespace dictionary {

/// A row of a subject dictionary.
struct SubjectRow {
  std::u16string word;
  std::u16string meaning;
};

/// The rows of every subject dictionary, by Subject.
using SubjectTables = std::array<std::vector<SubjectRow>, kSubjectCount>;

/// Makes the subject dictionaries: takes the entries one by one and sorts their rows in the end.
class SubjectCollector {
 public:
  /// Adds the entry's meaning to the dictionary of each subject that it has.
  void add(const Entry& entry);

  /// Everything added, each table in the text order of its headwords, one row for each. Ends the
  /// use of the collector.
  [[nodiscard]] SubjectTables finish() &&;

 private:
  SubjectTables tables_;
};

}  // namespace dictionary
