#include "dictionary/arrange/block_cuts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <vector>

namespace {

using dictionary::BlockCut;
using dictionary::chooseCuts;
using dictionary::chooseCutsJoining;
using dictionary::maxBlocks;
using dictionary::PrefixCounts;
using dictionary::TierCounts;

PrefixCounts countsOf(const std::vector<TierCounts>& units) {
  PrefixCounts counts = {TierCounts()};
  for (const TierCounts& unit : units) {
    const TierCounts& before = counts.back();
    counts.push_back(
        {before.wanted + unit.wanted, before.spare + unit.spare, before.reserve + unit.reserve});
  }
  return counts;
}

PrefixCounts wanted(const std::vector<std::size_t>& sizes) {
  std::vector<TierCounts> units;
  units.reserve(sizes.size());
  for (const std::size_t size : sizes) units.push_back({size, 0, 0});
  return countsOf(units);
}

std::vector<std::size_t> unitsOf(const std::vector<BlockCut>& cuts) {
  std::vector<std::size_t> units;
  units.reserve(cuts.size());
  for (const BlockCut& cut : cuts) units.push_back(cut.unit);
  return units;
}

std::vector<std::size_t> rowsOf(const std::vector<BlockCut>& cuts) {
  std::vector<std::size_t> rows;
  rows.reserve(cuts.size());
  for (const BlockCut& cut : cuts) rows.push_back(cut.rows);
  return rows;
}

TEST(MaxBlocks, CountsRunsOfWholeUnits) {
  EXPECT_EQ(maxBlocks(wanted({}), 10), 0U);
  EXPECT_EQ(maxBlocks(wanted({9}), 10), 0U);
  EXPECT_EQ(maxBlocks(wanted({5, 5, 5, 5}), 10), 2U);
  EXPECT_EQ(maxBlocks(wanted({9, 9, 9, 9}), 10), 2U);
  EXPECT_EQ(maxBlocks(countsOf({{3, 3, 3}, {0, 0, 1}}), 10), 1U);
}

TEST(ChooseCuts, DividesEvenlyWhereTheUnitsAllowIt) {
  const std::vector<BlockCut> cuts = chooseCuts(wanted(std::vector<std::size_t>(40, 1)), 4, 10);
  EXPECT_EQ(unitsOf(cuts), (std::vector<std::size_t>{0, 10, 20, 30, 40}));
  EXPECT_EQ(rowsOf(cuts), (std::vector<std::size_t>{0, 10, 20, 30, 40}));
}

TEST(ChooseCuts, GivesUpAsFewWantedPairsAsPossible) {
  // A cut after the third unit gives up nothing; after the second, eight pairs would be missing.
  EXPECT_EQ(unitsOf(chooseCuts(wanted({1, 1, 8, 5, 5, 1}), 2, 10)),
            (std::vector<std::size_t>{0, 3, 6}));
}

TEST(ChooseCuts, GivesEveryBlockTheSameShareOfSparePairs) {
  std::vector<TierCounts> units(100);
  for (std::size_t i = 0; i < units.size(); ++i) units[i] = {1, i % 2 == 0 ? 1U : 0U, 0};
  const std::vector<BlockCut> cuts = chooseCuts(countsOf(units), 12, 10);
  for (std::size_t i = 0; i + 1 < cuts.size(); ++i) {
    const std::size_t taken = cuts[i + 1].unit - cuts[i].unit;
    EXPECT_GE(taken, 7U);
    EXPECT_LE(taken, 9U);
  }
}

TEST(ChooseCuts, FindsTheOnlyDivisionHoweverFarItLies) {
  // All small units come first: every cut lies far from where equal blocks would end.
  std::vector<std::size_t> sizes(10, 1);
  sizes.insert(sizes.end(), {100, 100, 100});
  EXPECT_EQ(unitsOf(chooseCuts(wanted(sizes), 4, 10)),
            (std::vector<std::size_t>{0, 10, 11, 12, 13}));
}

TEST(ChooseCuts, RefusesMoreBlocksThanThereAre) {
  const PrefixCounts counts = wanted(std::vector<std::size_t>(400, 1));
  EXPECT_EQ(chooseCuts(counts, 40, 10).size(), 41U);
  EXPECT_THROW(chooseCuts(counts, 41, 10), std::invalid_argument);
  EXPECT_THROW(chooseCuts(counts, 0, 10), std::invalid_argument);
}

TEST(ChooseCutsJoining, JoinsBlocksThatALargeUnitCrosses) {
  std::vector<std::size_t> sizes(90, 1);
  sizes.push_back(120);
  sizes.insert(sizes.end(), 90, 1);
  const std::vector<BlockCut> cuts = chooseCutsJoining(wanted(sizes), 3, 100);
  EXPECT_EQ(rowsOf(cuts).front(), 0U);
  EXPECT_EQ(rowsOf(cuts).back(), 300U);
  EXPECT_EQ(unitsOf(cuts).back(), sizes.size());
  EXPECT_LT(cuts.size(), 4U);
}

TEST(ChooseCutsJoining, FallsBackToOneBlock) {
  const std::vector<BlockCut> cuts = chooseCutsJoining(wanted({1000}), 10, 100);
  EXPECT_EQ(unitsOf(cuts), (std::vector<std::size_t>{0, 1}));
  EXPECT_EQ(rowsOf(cuts), (std::vector<std::size_t>{0, 1000}));
}

// A Chinese headword has up to 201 rows.
TEST(ChooseCutsJoining, JoinsThreeBlocksAtMost) {
  const auto rowsAround = [](std::size_t large, std::size_t blocks) {
    std::vector<std::size_t> sizes(90, 1);
    sizes.push_back(large);
    sizes.insert(sizes.end(), 109, 1);
    return rowsOf(chooseCutsJoining(wanted(sizes), blocks, 100));
  };
  EXPECT_EQ(rowsAround(201, 4), (std::vector<std::size_t>{0, 300, 400}));
  EXPECT_EQ(rowsAround(301, 5), (std::vector<std::size_t>{0, 500}));
}

TEST(ChooseCutsJoining, JoinsBlocksRatherThanLosingTwoWantedPairs) {
  EXPECT_EQ(unitsOf(chooseCutsJoining(countsOf({{11, 0, 0}, {9, 0, 1}}), 2, 10)),
            (std::vector<std::size_t>{0, 1, 2}));
  EXPECT_EQ(unitsOf(chooseCutsJoining(countsOf({{12, 0, 0}, {8, 0, 2}}), 2, 10)),
            (std::vector<std::size_t>{0, 2}));
}

// The second unit crosses the places of three cuts. Only the end of the first one is near one of
// them, 41 rows before or after it.
TEST(ChooseCutsJoining, TakesTheNextEndOfAUnitWhereNoneIsNear) {
  for (const PrefixCounts& counts :
       {countsOf({{59, 0, 41}, {341, 0, 0}}), countsOf({{141, 0, 0}, {259, 0, 41}})}) {
    const std::vector<BlockCut> cuts = chooseCutsJoining(counts, 4, 100);
    EXPECT_EQ(unitsOf(cuts), (std::vector<std::size_t>{0, 1, 2}));
    EXPECT_EQ(rowsOf(cuts), (std::vector<std::size_t>{0, 100, 400}));
  }
}

// The cut with less deviation from the equal share gives up three wanted pairs.
TEST(ChooseCuts, PrefersADeviationToLosingAWantedPair) {
  EXPECT_EQ(unitsOf(chooseCuts(countsOf({{5, 4, 2}, {6, 3, 4}, {1, 6, 4}, {2, 6, 3}}), 2, 10)),
            (std::vector<std::size_t>{0, 1, 4}));
}

// A cut before the third unit gives up seven wanted pairs, one after it three, but deviates more.
TEST(ChooseCuts, WeighsAWantedPairAsADeviationByFourteen) {
  EXPECT_EQ(
      unitsOf(chooseCuts(countsOf({{30, 39, 0}, {0, 23, 0}, {33, 40, 0}, {34, 31, 0}}), 2, 60)),
      (std::vector<std::size_t>{0, 3, 4}));
}

// The cut with less deviation takes a reserve pair more.
TEST(ChooseCuts, PrefersADeviationToAReservePair) {
  EXPECT_EQ(unitsOf(chooseCuts(countsOf({{0, 6, 4}, {0, 6, 1}, {5, 0, 3}, {5, 4, 4}}), 2, 10)),
            (std::vector<std::size_t>{0, 2, 4}));
}

// Units of 4 wanted pairs and one spare one each: a cut may lie before or after its natural place.
TEST(ChooseCuts, AvoidsCutsThatCost) {
  const PrefixCounts counts = countsOf(std::vector<TierCounts>(40, {4, 1, 1}));
  dictionary::CutCosts costs(counts.size());
  EXPECT_EQ(unitsOf(chooseCuts(counts, 2, 90, costs)), (std::vector<std::size_t>{0, 20, 40}));
  costs[20] = 2;
  EXPECT_NE(unitsOf(chooseCuts(counts, 2, 90, costs))[1], 20U);
  EXPECT_EQ(rowsOf(chooseCuts(counts, 2, 90, costs)), (std::vector<std::size_t>{0, 90, 180}));
  costs.assign(counts.size(), 1);
  EXPECT_EQ(unitsOf(chooseCuts(counts, 2, 90, costs)), (std::vector<std::size_t>{0, 20, 40}));
}

TEST(ChooseCuts, MovesACutAsFarAsItPays) {
  const PrefixCounts counts = countsOf(std::vector<TierCounts>(40, {0, 1, 1}));
  dictionary::CutCosts costs(counts.size());
  std::fill(costs.begin() + 11, costs.begin() + 30, 20);
  EXPECT_EQ(unitsOf(chooseCuts(counts, 2, 20, costs)), (std::vector<std::size_t>{0, 10, 40}));
}

}  // namespace
