#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "dictionary/vocabulary.h"

namespace dictionary {

/// Number of pairs of each tier.
using TierCounts = std::array<std::uint32_t, kTierCount>;

/// Pairs in a sequence of units, which are runs of pairs that must stay together: element u counts
/// those before unit u, the last element counts them all.
using PrefixCounts = std::vector<TierCounts>;

/// The most runs of whole units with at least `blockRows` pairs each that the sequence divides
/// into.
std::size_t mostBlocks(const PrefixCounts& prefix, std::size_t blockRows);

/// Divides the sequence into `blocks` runs of whole units, from 1 to mostBlocks(), with at least
/// `blockRows` pairs each, so that what the runs hold beyond that is worth as little as possible.
/// Returns the blocks + 1 unit numbers where the runs begin and end.
std::vector<std::size_t> chooseCuts(const PrefixCounts& prefix, std::size_t blocks,
                                    std::size_t blockRows);

}  // namespace dictionary
