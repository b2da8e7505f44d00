#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

/// The rules of a dictionary database, and what a check finds.
namespace dictionary {

/// The rules that a dictionary database must keep; describe() returns what each one is. In the
/// order in which findings are printed: file, tables, general dictionary, lookups, subject
/// dictionaries, words. The last four are checked with the source only (source_check.h).
enum class Rule : std::uint8_t {
  kUndamaged,
  kTables,
  kColumns,
  kValues,
  kRowNumbers,
  kOrder,
  kSpelling,
  kRowCount,
  kLinks,
  kDistinctPairs,
  kEnglishIndex,
  kChineseIndex,
  kEnglishHeadwords,
  kChineseHeadwords,
  kSearchable,
  kCharacters,
  kMarkup,
  kIndexOrder,
  kEnglishReach,
  kApostropheReach,
  kChineseReach,
  kCatalogueTables,
  kCatalogueNames,
  kCatalogueFlags,
  kCatalogueDefault,
  kSubjectRows,
  kSubjectOrder,
  kLabels,
  kImportantWords,
  kOwnMeanings,
  kTitles,
  kCommands,
  kCount,
};

/// Returns the rule as a sentence without a full stop: what is the case if it is kept.
std::string_view describe(Rule rule);

/// Breaches of the rules: how often each is broken, and the first examples. A damaged file may
/// break one a million times, so that no more is kept.
class Findings {
 public:
  /// Examples that are kept of each rule.
  static constexpr std::size_t kMaxExamples = 5;

  /// Counts a breach of `rule`; `example` names the row or table in UTF-8.
  void add(Rule rule, std::string example);

  /// Returns whether no rule is broken.
  [[nodiscard]] bool empty() const;
  /// Return the number of breaches of one rule, and their first examples.
  [[nodiscard]] std::size_t count(Rule rule) const { return of(rule).count; }
  [[nodiscard]] const std::vector<std::string>& examples(Rule rule) const {
    return of(rule).examples;
  }

  /// Prints every broken rule with its count and examples.
  void print(std::ostream& out) const;

 private:
  struct Breaches {
    std::size_t count = 0;
    std::vector<std::string> examples;
  };

  [[nodiscard]] const Breaches& of(Rule rule) const {
    return breaches_[static_cast<std::size_t>(rule)];
  }

  std::array<Breaches, static_cast<std::size_t>(Rule::kCount)> breaches_;
};

/// The result of a check: the broken rules, and counts of what was read. Counts are of the rows as
/// they are, whether or not they break a rule.
struct CheckResult {
  Findings findings;
  std::size_t pairs = 0;  ///< rows of [edict]
  std::size_t englishHeadwords = 0;
  std::size_t chineseHeadwords = 0;
  std::size_t dictionaries = 0;
  std::size_t subjectRows = 0;  ///< of all subject dictionaries
  /// Lists that are shown for a Chinese headword typed in full, and how many of them end with a
  /// headword that has rows after those searched, so that choosing it shows some meanings only.
  std::size_t chineseLists = 0;
  std::size_t cutLists = 0;
  /// Important headwords for which the source has no Chinese text, and those of them without a row.
  std::size_t untranslatedWords = 0;
  std::size_t untranslatedWithoutRow = 0;
  /// Lengths of the lists that are shown for frequent English words (SourceFacts), in headwords,
  /// the shortest first; none without the source.
  std::vector<std::size_t> frequentLists;
};

}  // namespace dictionary
