#include "dictionary/arrange/row_exchange.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace {

using dictionary::BlockPlan;
using dictionary::Pair;
using dictionary::RowExchange;
using dictionary::Tier;

/// A pair in an English and a Chinese block.
struct Place {
  std::uint32_t english;
  std::uint32_t chinese;
  Tier tier;
  bool kept;
};

/// Blocks with pairs, before and after an exchange.
class Blocks {
 public:
  Blocks(const std::vector<Place>& places, std::vector<std::uint32_t> englishRows,
         std::vector<std::uint32_t> chineseRows) {
    english_.rows = std::move(englishRows);
    chinese_.rows = std::move(chineseRows);
    for (const Place& place : places) {
      pairs_.push_back({0, 0, place.tier, 0});
      english_.blockOf.push_back(place.english);
      chinese_.blockOf.push_back(place.chinese);
      kept.push_back(place.kept);
    }
    barred.resize(places.size());
  }

  bool exchange(Tier first) {
    RowExchange rows(pairs_, english_, chinese_, kept);
    rows.run(first, Tier::kWeb, barred);
    return rows.done();
  }

  void fillEnglish() {
    RowExchange rows(pairs_, english_, chinese_, kept);
    rows.fillEnglish(barred);
  }

  std::vector<bool> kept;
  std::vector<bool> barred;

 private:
  std::vector<Pair> pairs_;
  BlockPlan english_;
  BlockPlan chinese_;
};

TEST(RowExchange, HasNothingToDoForFullBlocks) {
  Blocks blocks({{0, 0, Tier::kFirst, true}, {0, 0, Tier::kWeb, false}}, {1}, {1});
  EXPECT_TRUE(blocks.exchange(Tier::kImportantFirst));
  EXPECT_EQ(blocks.kept, (std::vector<bool>{true, false}));
}

TEST(RowExchange, AddsWhatFitsBothLanguages) {
  Blocks blocks({{0, 1, Tier::kWeb, false},
                 {0, 0, Tier::kWeb, false},
                 {1, 0, Tier::kWeb, false},
                 {1, 1, Tier::kWeb, false}},
                {1, 1}, {2, 0});
  EXPECT_TRUE(blocks.exchange(Tier::kWeb));
  EXPECT_EQ(blocks.kept, (std::vector<bool>{false, true, true, false}));
}

TEST(RowExchange, ExchangesPairsAcrossBlocks) {
  // English block 0 lacks a row and Chinese block 1 too, but no pair stands in both. Adding (0, 0)
  // overfills Chinese block 0, so (1, 0) goes and (1, 1) comes.
  Blocks blocks({{0, 0, Tier::kWeb, false}, {1, 0, Tier::kWeb, true}, {1, 1, Tier::kWeb, false}},
                {1, 1}, {1, 1});
  EXPECT_TRUE(blocks.exchange(Tier::kWeb));
  EXPECT_EQ(blocks.kept, (std::vector<bool>{true, false, true}));
}

TEST(RowExchange, LeavesValuablePairsAloneUnlessTheyAreGivenUp) {
  const std::vector<Place> places = {
      {0, 0, Tier::kWeb, false}, {1, 0, Tier::kOrdinary, true}, {1, 1, Tier::kWeb, false}};
  Blocks blocks(places, {1, 1}, {1, 1});
  EXPECT_FALSE(blocks.exchange(Tier::kInflected));
  EXPECT_EQ(blocks.kept, (std::vector<bool>{false, true, false}));
  EXPECT_TRUE(blocks.exchange(Tier::kOrdinary));
  EXPECT_EQ(blocks.kept, (std::vector<bool>{true, false, true}));
}

TEST(RowExchange, NeverAddsABarredPair) {
  Blocks blocks({{0, 0, Tier::kWeb, false}}, {1}, {1});
  blocks.barred[0] = true;
  EXPECT_FALSE(blocks.exchange(Tier::kImportantFirst));
  blocks.fillEnglish();
  EXPECT_EQ(blocks.kept, (std::vector<bool>{false}));
}

TEST(RowExchange, FillsEnglishBlocksInAnyCase) {
  Blocks blocks({{0, 0, Tier::kWeb, false}, {0, 0, Tier::kName, false}, {1, 0, Tier::kWeb, false}},
                {1, 1}, {0, 2});
  EXPECT_FALSE(blocks.exchange(Tier::kImportantFirst));
  blocks.fillEnglish();
  EXPECT_EQ(blocks.kept, (std::vector<bool>{false, true, true}));
}

}  // namespace
