#pragma once

#include <cstdint>

/// Rows that the bound step counts in, where headwords are looked up and where a dictionary is made
/// so that every lookup finds its rows.
namespace data {

/// Every so many rows of [edict] and [cdict] one stands in the index tables.
inline constexpr std::int32_t kBlockRows = 100;

/// The lower bound lies so far below the last row of a block, so that the block before is searched
/// too.
inline constexpr std::int32_t kReachBack = 200;

/// The widest range of rows that is searched.
inline constexpr std::int32_t kWindowRows = 500;

/// Where a Chinese search ends that no index row ends: the rows that [cdict] may have.
inline constexpr std::int32_t kLastRow = 1'060'000;

}  // namespace data
