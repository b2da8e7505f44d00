#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Dividing one language's sequence of pairs into the blocks of its table. Knows numbers only, not
/// words. The functions are pure.
namespace dictionary {

/// Numbers of pairs by their use: all `wanted` pairs and a part of the `spare` ones are to be kept,
/// `reserve` pairs only where nothing else fits.
struct TierCounts {
  std::uint64_t wanted = 0;
  std::uint64_t spare = 0;
  std::uint64_t reserve = 0;
};

/// Prefix sums over a sequence of units, which are runs of pairs that must stay together: element u
/// counts the pairs before unit u, the last element counts all. Has at least one element.
using PrefixCounts = std::vector<TierCounts>;

/// What a cut before each unit, or after the last one, costs besides what the blocks lose: 0 where
/// it does no harm. Has as many elements as the prefix counts, or none, if all cost the same.
using CutCosts = std::vector<std::uint32_t>;

/// A boundary between blocks.
struct BlockCut {
  std::size_t unit = 0;  ///< the first unit after the cut
  std::size_t rows = 0;  ///< rows of all blocks before the cut
};

/// Returns the largest number of runs of whole units with at least `blockRows` pairs each into
/// which the sequence can be divided.
std::size_t maxBlocks(const PrefixCounts& counts, std::size_t blockRows);

/// Divides the sequence into `blocks` blocks of whole units with `blockRows` rows each, so that
/// every block gives up few wanted pairs and uses about the same share of its spare ones, and so
/// that the cuts cost little. Returns the cuts before, between and after the blocks. Throws
/// std::invalid_argument unless `blocks` is from 1 to maxBlocks().
std::vector<BlockCut> chooseCuts(const PrefixCounts& counts, std::size_t blocks,
                                 std::size_t blockRows, const CutCosts& costs = {});

/// As chooseCuts(), but where no unit ends near the place of a cut, two or three blocks become one
/// with as many rows; if that does not suffice, all of them. Always returns cuts.
std::vector<BlockCut> chooseCutsJoining(const PrefixCounts& counts, std::size_t blocks,
                                        std::size_t blockRows);

}  // namespace dictionary
