#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "dictionary/vocabulary.h"

namespace dictionary {

/// Number of pairs of each tier.
using TierCounts = std::array<std::uint32_t, kTierCount>;

/// Divides a sequence of units (runs of pairs that must stay together) into `blocks` runs of at
/// least `blockRows` pairs each, so that what each run holds beyond that is worth as little as
/// possible. `prefix[u]` counts the pairs before unit u; its last element counts them all.
/// Returns the blocks + 1 unit numbers where the runs begin and end, or nothing if that many blocks
/// cannot be filled.
std::vector<std::size_t> chooseCuts(const std::vector<TierCounts>& prefix, std::size_t blocks,
                                    std::size_t blockRows);

}  // namespace dictionary
