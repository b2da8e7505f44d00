#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "dictionary/database/writer.h"
#include "dictionary/source/csv_reader.h"
#include "dictionary/translation/entry.h"

namespace dictionary {

/// Line numbers in ascending order, stored and printed as ranges: a source of another format may
/// have a million bad lines in a row.
class LineRanges {
 public:
  /// Adds a line number greater than all that were added before.
  void add(std::size_t line);

  /// Returns the number of lines added.
  [[nodiscard]] std::size_t count() const { return count_; }

  /// Returns "line 7", or "lines 7-9, 12".
  [[nodiscard]] std::string text() const;

 private:
  /// Both ends included.
  struct Range {
    std::size_t first;
    std::size_t last;
  };

  std::vector<Range> ranges_;
  std::size_t count_ = 0;
};

/// The summary at the end of a build: what was read, kept and left out, and why. Copies numbers
/// only, so that the content need not outlive it.
class BuildReport {
 public:
  /// Counts a line that could not be read.
  void addBadLine(LineFault fault) { ++badLines_[fault]; }
  /// Counts an entry whose word cannot be a headword.
  void addBadHeadword() { ++badHeadwords_; }
  /// Counts an entry; `pairs` is the number of pairs that it gave.
  void addEntry(const Entry& entry, std::size_t pairs);
  /// Counts the rows written, and the pairs kept and left out by tier. `chosen` has one flag for
  /// each pair of the vocabulary. To be called once.
  /// English headwords without a row are counted where they have a first equivalent, so that they
  /// are missed.
  void addContent(const DatabaseContent& content, const std::vector<bool>& chosen);

  /// Counts the terms of our own list, and those of them that have no row. To be called once.
  void addTerms(std::size_t terms, std::size_t withoutRow);

  /// Prints the counts in three parts: source, general dictionary, subject dictionaries.
  void print(std::ostream& out) const;

 private:
  void printSource(std::ostream& out) const;
  void printPairs(std::ostream& out) const;
  void printSubjects(std::ostream& out) const;

  // The source, counted while it is read.
  std::map<LineFault, std::size_t> badLines_;
  std::size_t badHeadwords_ = 0;
  std::size_t entries_ = 0;
  std::size_t emptyEntries_ = 0;         ///< without a line of translation
  std::size_t referringEntries_ = 0;     ///< without pairs of their own, but with a reference
  std::size_t entriesWithoutPairs_ = 0;  ///< all others without pairs
  std::array<std::size_t, static_cast<std::size_t>(PieceFault::kCount)> pieces_{};  ///< by fault

  // The content. English and Chinese headwords are counted before and after the choice of pairs.
  std::size_t pairs_ = 0;  ///< gathered
  std::size_t rows_ = 0;   ///< pairs kept
  std::size_t english_ = 0;
  std::size_t chinese_ = 0;
  std::size_t englishKept_ = 0;
  std::size_t chineseKept_ = 0;
  std::size_t missed_ = 0;  ///< English headwords with a first equivalent, but without a row
  std::size_t terms_ = 0;
  std::size_t termsWithoutRow_ = 0;
  std::array<std::size_t, kTierCount> gathered_{};  ///< pairs by tier
  std::array<std::size_t, kTierCount> kept_{};      ///< pairs by tier
  std::array<std::size_t, kSubjectCount> subjectRows_{};
};

}  // namespace dictionary
