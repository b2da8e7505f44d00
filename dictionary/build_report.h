#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <ostream>

#include "dictionary/database/database_writer.h"
#include "dictionary/source/csv_line.h"
#include "dictionary/translation/entry.h"

namespace dictionary {

/// What a build read, kept and left out, and why.
class BuildReport {
 public:
  void addBadLine(LineFault fault) { ++badLines_[fault]; }
  void addBadHeadword() { ++badHeadwords_; }
  /// An entry and the number of pairs that it gave.
  void addEntry(const Entry& entry, std::size_t pairs);
  /// What became of the pairs, and the rows written.
  void addContent(const DatabaseContent& content, const std::vector<bool>& chosen);

  void print(std::ostream& out) const;

 private:
  void printSource(std::ostream& out) const;
  void printPairs(std::ostream& out) const;
  void printSubjects(std::ostream& out) const;

  std::map<LineFault, std::size_t> badLines_;
  std::size_t badHeadwords_ = 0;
  std::size_t entries_ = 0;
  std::size_t emptyEntries_ = 0;
  std::size_t referringEntries_ = 0;
  std::size_t entriesWithoutPairs_ = 0;
  std::array<std::size_t, static_cast<std::size_t>(PieceFault::kCount)> pieces_{};

  std::size_t pairs_ = 0;
  std::size_t rows_ = 0;
  std::size_t english_ = 0;
  std::size_t chinese_ = 0;
  std::size_t englishKept_ = 0;
  std::size_t chineseKept_ = 0;
  std::array<std::size_t, kTierCount> gathered_{};
  std::array<std::size_t, kTierCount> kept_{};
  std::array<std::size_t, kSubjectCount> subjectRows_{};
};

}  // namespace dictionary
