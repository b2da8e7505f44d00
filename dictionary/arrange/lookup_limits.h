#pragma once

#include <cstddef>

#include "data/bound_limits.h"

namespace dictionary {

/// What the lookups can reach, by the arithmetic of their bound step.
struct LookupLimits {
  /// Every index row stands for the headword rows up to it: [edictidx] and [cdictidx] name the
  /// headword of each hundredth row.
  std::size_t blockRows = data::kBlockRows;
  /// Where the bound step ends a Chinese search that no index row ends.
  std::size_t maxRows = data::kLastRow;
  /// A Chinese search reaches back from the last index row that is not behind the word, so a
  /// headword with more rows than lie between is cut.
  std::size_t maxChineseRows = data::kReachBack + 1;
};

}  // namespace dictionary
