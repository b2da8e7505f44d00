#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/check/general.h"
#include "dictionary/check/rules.h"

/// Whether lookups find every row: the program's bound step, repeated for every headword.
namespace dictionary {

/// The row numbers, from 1, that a lookup searches; both ends included, as data::Bounds.
struct RowWindow {
  std::int64_t lower = 0;
  std::int64_t upper = 0;

  /// Returns whether the rows from `first` to `last` are all searched.
  [[nodiscard]] bool holds(std::int64_t first, std::int64_t last) const {
    return lower <= first && last <= upper;
  }
};

/// The bound step of an English lookup (data/headword_lookup.h) on an index in memory, which is
/// fast enough to be repeated for every headword. Gives the same windows for any index, also for
/// one that is not in order.
class EnglishBoundStep {
 public:
  /// `index`: the words of [edictidx], which are copied.
  explicit EnglishBoundStep(const std::vector<std::u16string>& index);

  /// Returns the window for a word as typed; nullopt for a word after the last index word, where
  /// the program keeps the bounds of the lookup before.
  [[nodiscard]] std::optional<RowWindow> window(std::u16string_view word) const;

 private:
  /// Prefix maxima of the index in lower case. They ascend, so that a binary search finds the first
  /// index word that is not less than a word.
  std::vector<std::u16string> greatest_;
};

/// The same for a Chinese lookup.
class ChineseBoundStep {
 public:
  /// `index`: the words of [cdictidx] in the order of their numbers; copied.
  explicit ChineseBoundStep(const std::vector<std::u16string>& index);

  /// Returns the window for a word as typed, which always has one.
  [[nodiscard]] RowWindow window(std::u16string_view word) const;

 private:
  std::vector<std::u16string> greatest_;  ///< prefix maxima of the index in the text order
  std::vector<std::u16string> least_;     ///< suffix minima of the index in the text order
};

/// Repeats the bound step for every headword of both languages, typed in full, and checks that the
/// rows that it searches include all rows of the headword. Sets the counts of headwords and lists.
void checkReach(const GeneralTables& tables, CheckResult& result);

/// Returns how many headwords the list shows for each of the words that has rows, the shortest list
/// first. A list ends with the block in which its first headword ends.
std::vector<std::size_t> listLengths(const GeneralTables& tables,
                                     const std::vector<std::u16string>& words);

}  // namespace dictionary
