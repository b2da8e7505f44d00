#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/arrange/vocabulary.h"
#include "dictionary/translation/entry.h"
#include "dictionary/translation/subjects.h"

/// The rows of the database's tables before they are written. Words of the general dictionary are
/// indexes into the vocabulary, since most of them are in several rows.
namespace dictionary {

/// One row of [edict] or [cdict]. Its row number is its index in the table plus 1.
struct HeadwordRow {
  std::uint32_t word = 0;  ///< index into the vocabulary's list of that language
  std::uint32_t link = 0;  ///< row number of the other half of the pair in the other table
};

/// The rows of the general dictionary, each table in the text order of its headwords.
struct GeneralDictionary {
  std::vector<HeadwordRow> edict;
  std::vector<HeadwordRow> cdict;
};

/// Returns the rows of the chosen pairs. `chosen` has one flag for each of the vocabulary's pairs.
GeneralDictionary arrange(const Vocabulary& vocabulary, const std::vector<bool>& chosen);

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
  /// Adds the entry's meaning to the dictionary of each subject that it has. Copies the texts.
  void add(const Entry& entry);

  /// Adds an equivalent of another source. Copies the texts.
  void add(Subject subject, std::u16string_view word, std::u16string_view equivalent);

  /// Returns everything added, each table in the text order of its headwords, one row for each.
  /// Ends the use of the collector.
  [[nodiscard]] SubjectTables finish() &&;

 private:
  SubjectTables tables_;
};

}  // namespace dictionary
