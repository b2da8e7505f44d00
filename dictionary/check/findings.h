#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace dictionary {

/// The rules that a dictionary database keeps.
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
  kCount,
};

/// The rule as a sentence without its full stop.
std::string_view describe(Rule rule);

/// What breaks the rules: how often each is broken, and the first few examples.
class Findings {
 public:
  static constexpr std::size_t kMaxExamples = 5;

  void add(Rule rule, std::string example);

  [[nodiscard]] bool empty() const;
  [[nodiscard]] std::size_t count(Rule rule) const { return of(rule).count; }
  [[nodiscard]] const std::vector<std::string>& examples(Rule rule) const {
    return of(rule).examples;
  }

  /// Every broken rule with its count and examples.
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

}  // namespace dictionary
