#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace dictionary {

/// How many pairs there are of each use: all of `wanted` and a part of `spare` are to be kept,
/// those of `reserve` only where nothing else fits.
struct PairStock {
  std::uint64_t wanted = 0;
  std::uint64_t spare = 0;
  std::uint64_t reserve = 0;
};

/// Pairs in a sequence of units, which are runs of pairs that must stay together: element u counts
/// those before unit u, the last element counts them all.
using StockBefore = std::vector<PairStock>;

/// Where a block ends: before a unit, and how many rows lie before it.
struct BlockCut {
  std::size_t unit = 0;
  std::size_t rows = 0;
};

/// The most runs of whole units with at least `blockRows` pairs each that the sequence divides
/// into.
std::size_t mostBlocks(const StockBefore& stock, std::size_t blockRows);

/// Divides the sequence into `blocks` blocks of whole units, from 1 to mostBlocks(), of `blockRows`
/// rows each, so that every block gives up few wanted pairs and uses about the same share of its
/// spare ones. Returns the cuts before, between and behind the blocks.
std::vector<BlockCut> chooseCuts(const StockBefore& stock, std::size_t blocks,
                                 std::size_t blockRows);

/// The same, but where no unit ends near a cut's place, two or three blocks, and if need be all,
/// become one of as many rows.
std::vector<BlockCut> chooseCutsJoining(const StockBefore& stock, std::size_t blocks,
                                        std::size_t blockRows);

}  // namespace dictionary
