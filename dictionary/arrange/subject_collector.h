#pragma once

#include <array>
#include <string>
#include <vector>

#include "dictionary/translation/entry.h"
#include "dictionary/translation/subjects.h"

namespace dictionary {

struct SubjectRow {
  std::u16string word;
  std::u16string meaning;
};

/// The rows of every subject dictionary, in the order of the catalogue.
using SubjectTables = std::array<std::vector<SubjectRow>, kSubjectCount>;

/// Gathers the rows of the subject dictionaries.
class SubjectCollector {
 public:
  void add(const Entry& entry);

  /// Everything gathered, each table in the text order of its headwords, one row for each.
  [[nodiscard]] SubjectTables finish() &&;

 private:
  SubjectTables tables_;
};

}  // namespace dictionary
