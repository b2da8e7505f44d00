#pragma once

#include <cstddef>

namespace dictionary {

/// What the lookups can reach, by the arithmetic of their bound step (data/headword_lookup.h).
struct LookupLimits {
  /// Every index row stands for the headword rows up to it: [edictidx] and [cdictidx] name the
  /// headword of each hundredth row.
  std::size_t blockRows = 100;
  /// Where the bound step ends a Chinese search that no index row ends.
  std::size_t maxRows = 1'060'000;
  /// A Chinese search begins 200 rows before the last index row that is not behind the word, so a
  /// headword with more rows than this one more is cut.
  std::size_t maxChineseRows = 201;
};

}  // namespace dictionary
