#include "tests/unit/dictionary/arrange/block_packing_test.h"

#include <random>
#include <stdexcept>

#include "dictionary/console.h"

namespace {

using namespace block_packing_test;

TEST(ChoosePairs, TakesEverythingThatFillsBlocks) {
  const Vocabulary vocabulary = vocabularyOf(singles(300));
  EXPECT_EQ(keptCount(choosePairs(vocabulary, LookupLimits())), 300U);
}

TEST(ChoosePairs, LeavesOutPairsThatFillNoBlock) {
  const Vocabulary vocabulary = vocabularyOf(singles(399));
  const std::vector<bool> kept = choosePairs(vocabulary, LookupLimits());
  EXPECT_EQ(keptCount(kept), 300U);
  expectWholeBlocks(vocabulary, kept);
}

TEST(ChoosePairs, ThrowsForLessThanABlock) {
  EXPECT_THROW(choosePairs(vocabularyOf(singles(99)), LookupLimits()), dictionary::Failure);
  EXPECT_THROW(choosePairs(Vocabulary(), LookupLimits()), dictionary::Failure);
}

TEST(ChoosePairs, RefusesLimitsWithoutRoomForABlock) {
  const Vocabulary vocabulary = vocabularyOf(singles(300));
  EXPECT_THROW(choosePairs(vocabulary, {.maxRows = 99}), std::invalid_argument);
  EXPECT_THROW(choosePairs(vocabulary, {.blockRows = 0}), std::invalid_argument);
  EXPECT_EQ(keptCount(choosePairs(vocabulary, {.maxRows = 100})), 100U);
}

TEST(ChoosePairs, KeepsToTheRowLimit) {
  LookupLimits limits;
  limits.maxRows = 500;
  const Vocabulary vocabulary = vocabularyOf(singles(2000));
  const std::vector<bool> kept = choosePairs(vocabulary, limits);
  EXPECT_EQ(keptCount(kept), 500U);
  expectWholeBlocks(vocabulary, kept);
}

TEST(ChoosePairs, LetsNoHeadwordCrossABlock) {
  std::vector<Word> words = singles(1000);
  for (std::size_t i = 0; i < words.size(); ++i) words[i].pairs = 1 + i * 7 % 12;
  const Vocabulary vocabulary = vocabularyOf(words);
  const std::vector<bool> kept = choosePairs(vocabulary, LookupLimits());
  expectWholeBlocks(vocabulary, kept);
  EXPECT_GT(keptCount(kept), vocabulary.pairs.size() * 95 / 100);
}

TEST(ChoosePairs, FindsRoomForALargeHeadwordAtABoundary) {
  for (const std::size_t before : {20, 60, 90, 99}) {
    std::vector<Word> words = singles(before, u"a");
    words.push_back({u"b", 80});
    for (Word& word : singles(220 - before, u"c")) words.push_back(word);
    const Vocabulary vocabulary = vocabularyOf(words);
    const std::vector<bool> kept = choosePairs(vocabulary, LookupLimits());
    expectWholeBlocks(vocabulary, kept);
  }
}

TEST(ChoosePairs, CutsAHeadwordThatIsLargerThanABlock) {
  std::vector<Word> words = singles(200);
  words.push_back({u"z", 150});
  const Vocabulary vocabulary = vocabularyOf(words);
  const std::vector<bool> kept = choosePairs(vocabulary, LookupLimits());
  EXPECT_EQ(keptCount(kept), 300U);
  expectWholeBlocks(vocabulary, kept);
}

TEST(ChoosePairs, LeavesOutTheLeastValuableFirst) {
  std::vector<Word> words = singles(1000);
  for (std::size_t i = 0; i < words.size(); ++i) words[i].pairs = 1 + i % 3;
  for (std::size_t i = 0; i < words.size(); i += 5) words[i].tier = Tier::kWeb;
  const Vocabulary vocabulary = vocabularyOf(words);
  LookupLimits limits;
  limits.maxRows = 1700;
  const std::vector<bool> kept = choosePairs(vocabulary, limits);
  expectWholeBlocks(vocabulary, kept);
  EXPECT_EQ(keptCount(kept), 1700U);
  for (std::size_t i = 0; i < kept.size(); ++i) {
    if (vocabulary.pairs[i].tier != Tier::kWeb) {
      EXPECT_TRUE(kept[i]);
    }
  }
}

TEST(ChoosePairs, LeavesOutLaterEquivalentsBeforeFirstOnes) {
  std::vector<Word> words = singles(60);
  for (Word& word : words) word.pairs = 3;
  const Vocabulary vocabulary = vocabularyOf(words);
  const std::vector<bool> kept = choosePairs(vocabulary, LookupLimits());
  EXPECT_EQ(keptCount(kept), 100U);
  for (std::size_t i = 0; i < kept.size(); ++i) {
    if (vocabulary.pairs[i].position == 0) {
      EXPECT_TRUE(kept[i]);
    }
  }
}

TEST(ChoosePairs, LimitsTheRowsOfAChineseHeadword) {
  Vocabulary vocabulary = vocabularyOf(singles(600));
  for (std::size_t i = 0; i < 250; ++i) vocabulary.pairs[i * 2].chinese = 0;
  for (std::size_t i = 0; i < 49; ++i) vocabulary.pairs[i * 2].tier = Tier::kWeb;
  const std::vector<bool> kept = choosePairs(vocabulary, LookupLimits());
  std::size_t rows = 0;
  for (std::size_t i = 0; i < kept.size(); ++i) {
    if (kept[i] && vocabulary.pairs[i].chinese == 0) {
      ++rows;
      EXPECT_NE(vocabulary.pairs[i].tier, Tier::kWeb);
    }
  }
  EXPECT_LE(rows, 201U);
  EXPECT_GE(rows, 150U) << "only what does not fit into whole blocks is left out";
  expectWholeBlocks(vocabulary, kept);
}

TEST(ChoosePairs, KeepsAsManyRowsOfAChineseHeadwordAsALookupReads) {
  for (const std::size_t many : {500U, 600U}) {
    Vocabulary vocabulary = vocabularyOf(singles(1200));
    for (std::size_t i = 0; i < many; ++i) vocabulary.pairs[i * 2].chinese = 0;
    const std::vector<bool> kept = choosePairs(vocabulary, LookupLimits());
    std::size_t rows = 0;
    for (std::size_t i = 0; i < kept.size(); ++i) {
      if (kept[i] && vocabulary.pairs[i].chinese == 0) ++rows;
    }
    EXPECT_EQ(rows, 201U) << many;
  }
}

TEST(ChoosePairs, LetsNoChineseHeadwordCrossABlockWhereAvoidable) {
  // 4,000 wanted and 1,000 spare pairs of 1,500 Chinese headwords in another order.
  std::mt19937 random(7);
  std::vector<Word> words = singles(2500);
  for (Word& word : words) word.pairs = 2;
  Vocabulary vocabulary = vocabularyOf(words);
  for (Pair& pair : vocabulary.pairs) {
    pair.chinese = static_cast<std::uint32_t>(random() % 1500);
    pair.tier = random() % 5 == 0 ? Tier::kWeb : Tier::kFirst;
  }
  LookupLimits limits;
  limits.maxRows = 4500;
  const std::vector<bool> kept = choosePairs(vocabulary, limits);
  expectWholeBlocks(vocabulary, kept);

  std::vector<std::uint32_t> chinese;
  for (std::size_t i = 0; i < kept.size(); ++i) {
    if (kept[i]) {
      chinese.push_back(vocabulary.pairs[i].chinese);
    } else {
      EXPECT_EQ(vocabulary.pairs[i].tier, Tier::kWeb);
    }
  }
  std::ranges::sort(chinese);
  ASSERT_EQ(chinese.size(), 4500U);
  for (std::size_t row = 100; row < chinese.size(); row += 100) {
    EXPECT_NE(chinese[row - 1], chinese[row]) << row;
  }
}

TEST(ChoosePairs, KeepsWholeBlocksForRandomVocabularies) {
  std::mt19937 random(20240611);
  for (int round = 0; round < 20; ++round) {
    std::vector<Word> words = singles(500 + random() % 500);
    for (Word& word : words) {
      word.pairs = 1 + random() % 4;
      if (random() % 50 == 0) word.pairs = 20 + random() % 90;
      if (random() % 10 == 0) word.text += u"'s";
      if (random() % 30 == 0) word.text = u"o'" + word.text;
      word.tier = static_cast<Tier>(random() % dictionary::kTierCount);
    }
    const Vocabulary vocabulary = vocabularyOf(words);
    const std::vector<bool> kept = choosePairs(vocabulary, LookupLimits());
    expectWholeBlocks(vocabulary, kept);
    EXPECT_GT(keptCount(kept), vocabulary.pairs.size() / 2);
  }
}

// Every third word is wanted. The last word has rows for none of its pairs, so that their tier does
// not count for that of the last row.
TEST(ChoosePairs, TakesTheSameShareOfEveryBlockWhateverIsOutOfReach) {
  std::vector<Word> words = singles(30);
  for (std::size_t i = 0; i < words.size(); ++i) {
    words[i].tier = i % 3 == 0 ? Tier::kFirst : Tier::kOrdinary;
  }
  words.push_back({u"z", 10});
  Vocabulary vocabulary = vocabularyOf(words);
  for (std::size_t i = 30; i < 40; ++i) {
    vocabulary.pairs[i].chinese = vocabulary.pairs[0].chinese;
    vocabulary.pairs[i].position = 1;
  }
  const std::vector<bool> kept =
      choosePairs(vocabulary, {.blockRows = 10, .maxRows = 20, .maxChineseRows = 1});
  EXPECT_EQ(std::count(kept.begin(), kept.begin() + 15, true), 10);
  EXPECT_EQ(std::count(kept.begin() + 15, kept.begin() + 30, true), 10);
}

/// Which pairs are kept of one headword with a pair more than a block has rows.
std::vector<bool> keptOfTooMany(const std::vector<std::pair<Tier, std::uint8_t>>& values) {
  Vocabulary vocabulary = vocabularyOf({{u"a", values.size()}});
  for (std::size_t i = 0; i < values.size(); ++i) {
    vocabulary.pairs[i].tier = values[i].first;
    vocabulary.pairs[i].position = values[i].second;
  }
  return choosePairs(vocabulary, LookupLimits());
}

TEST(ChoosePairs, LeavesOutTheWorstTierThenTheLastPosition) {
  std::vector<std::pair<Tier, std::uint8_t>> values;
  for (std::uint8_t i = 0; i < 101; ++i) values.emplace_back(Tier::kOrdinary, i);
  values[0].first = Tier::kWeb;
  std::vector<bool> kept = keptOfTooMany(values);
  EXPECT_FALSE(kept[0]);
  EXPECT_EQ(keptCount(kept), 100U);

  values[0] = {Tier::kOrdinary, 200};
  kept = keptOfTooMany(values);
  EXPECT_FALSE(kept[0]);
  EXPECT_EQ(keptCount(kept), 100U);
}

}  // namespace
