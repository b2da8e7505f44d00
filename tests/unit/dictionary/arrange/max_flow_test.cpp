#include "dictionary/arrange/max_flow.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace {

using dictionary::BlockPlan;
using dictionary::MaxFlow;
using dictionary::Pair;
using dictionary::Tier;

/// A pair with its English and its Chinese block.
struct Edge {
  std::uint32_t english;
  std::uint32_t chinese;
  Tier tier;
  bool kept;
  std::uint8_t position = 0;
};

/// Blocks of both languages and the pairs kept in them.
class Blocks {
 public:
  Blocks(const std::vector<Edge>& edges, std::vector<std::uint32_t> englishRows,
         std::vector<std::uint32_t> chineseRows) {
    english_.rows = std::move(englishRows);
    chinese_.rows = std::move(chineseRows);
    for (const Edge& edge : edges) {
      pairs_.push_back({0, 0, edge.tier, edge.position});
      english_.blockOf.push_back(edge.english);
      chinese_.blockOf.push_back(edge.chinese);
      kept.push_back(edge.kept);
    }
    excluded.resize(edges.size());
  }

  bool run(Tier first) {
    MaxFlow flow(pairs_, english_, chinese_, kept);
    flow.run(first, Tier::kWeb, excluded);
    return flow.done();
  }

  bool fillEnglish() {
    MaxFlow flow(pairs_, english_, chinese_, kept);
    flow.fillEnglish(excluded);
    return flow.done();
  }

  std::vector<bool> kept;
  std::vector<bool> excluded;

 private:
  std::vector<Pair> pairs_;
  BlockPlan english_;
  BlockPlan chinese_;
};

TEST(MaxFlow, ChangesNothingWhereBlocksAreFull) {
  Blocks blocks({{0, 0, Tier::kFirst, true}, {0, 0, Tier::kWeb, false}}, {1}, {1});
  EXPECT_TRUE(blocks.run(Tier::kImportantFirst));
  EXPECT_EQ(blocks.kept, (std::vector<bool>{true, false}));
}

TEST(MaxFlow, AddsPairsThatFitBothLanguages) {
  Blocks blocks({{0, 1, Tier::kWeb, false},
                 {0, 0, Tier::kWeb, false},
                 {1, 0, Tier::kWeb, false},
                 {1, 1, Tier::kWeb, false}},
                {1, 1}, {2, 0});
  EXPECT_TRUE(blocks.run(Tier::kWeb));
  EXPECT_EQ(blocks.kept, (std::vector<bool>{false, true, true, false}));
}

TEST(MaxFlow, ExchangesPairsAlongAnAugmentingPath) {
  // English block 0 lacks a row and Chinese block 1 too, but no pair stands in both. Adding (0, 0)
  // overfills Chinese block 0, so (1, 0) goes and (1, 1) comes.
  Blocks blocks({{0, 0, Tier::kWeb, false}, {1, 0, Tier::kWeb, true}, {1, 1, Tier::kWeb, false}},
                {1, 1}, {1, 1});
  EXPECT_TRUE(blocks.run(Tier::kWeb));
  EXPECT_EQ(blocks.kept, (std::vector<bool>{true, false, true}));
}

TEST(MaxFlow, RemovesOnlyPairsOfTheGivenTiers) {
  const std::vector<Edge> edges = {
      {0, 0, Tier::kWeb, false}, {1, 0, Tier::kOrdinary, true}, {1, 1, Tier::kWeb, false}};
  Blocks blocks(edges, {1, 1}, {1, 1});
  EXPECT_FALSE(blocks.run(Tier::kInflected));
  EXPECT_EQ(blocks.kept, (std::vector<bool>{false, true, false}));
  EXPECT_TRUE(blocks.run(Tier::kOrdinary));
  EXPECT_EQ(blocks.kept, (std::vector<bool>{true, false, true}));
}

TEST(MaxFlow, NeverAddsAnExcludedPair) {
  Blocks blocks({{0, 0, Tier::kWeb, false}}, {1}, {1});
  blocks.excluded[0] = true;
  EXPECT_FALSE(blocks.run(Tier::kImportantFirst));
  EXPECT_FALSE(blocks.fillEnglish());
  EXPECT_EQ(blocks.kept, (std::vector<bool>{false}));
}

TEST(MaxFlow, FillsEnglishBlocksWithoutRegardToChinese) {
  Blocks blocks({{0, 0, Tier::kWeb, false}, {0, 0, Tier::kName, false}, {1, 0, Tier::kWeb, false}},
                {1, 1}, {0, 2});
  EXPECT_FALSE(blocks.run(Tier::kImportantFirst));
  EXPECT_TRUE(blocks.fillEnglish());
  EXPECT_EQ(blocks.kept, (std::vector<bool>{false, true, true}));
}

TEST(MaxFlow, FillsARowBesideAPairThatHasOne) {
  Blocks blocks({{0, 0, Tier::kFirst, true}, {0, 0, Tier::kWeb, false}}, {2}, {1});
  EXPECT_TRUE(blocks.fillEnglish());
  EXPECT_EQ(blocks.kept, (std::vector<bool>{true, true}));
}

TEST(MaxFlow, AddsTheMostValuablePair) {
  Blocks tiers({{0, 0, Tier::kWeb, false, 0}, {0, 0, Tier::kName, false, 7}}, {1}, {1});
  EXPECT_TRUE(tiers.run(Tier::kImportantFirst));
  EXPECT_EQ(tiers.kept, (std::vector<bool>{false, true}));
  Blocks positions({{0, 0, Tier::kWeb, false, 7}, {0, 0, Tier::kWeb, false, 3}}, {1}, {1});
  EXPECT_TRUE(positions.run(Tier::kImportantFirst));
  EXPECT_EQ(positions.kept, (std::vector<bool>{false, true}));
}

TEST(MaxFlow, RemovesTheLeastValuablePair) {
  // Adding (0, 0) overfills Chinese block 0, so that one of two pairs of English block 1 goes.
  Blocks blocks({{0, 0, Tier::kWeb, false},
                 {1, 0, Tier::kOrdinary, true},
                 {1, 0, Tier::kWeb, true},
                 {1, 1, Tier::kWeb, false}},
                {1, 2}, {2, 1});
  EXPECT_TRUE(blocks.run(Tier::kImportantFirst));
  EXPECT_EQ(blocks.kept, (std::vector<bool>{true, true, false, true}));
}

}  // namespace
