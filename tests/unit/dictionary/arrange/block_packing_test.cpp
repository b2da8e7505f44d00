#include "dictionary/arrange/block_packing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "dictionary/console.h"
#include "text/order.h"

namespace {

using dictionary::choosePairs;
using dictionary::LookupLimits;
using dictionary::Pair;
using dictionary::Tier;
using dictionary::Vocabulary;

/// A headword with a number of pairs.
struct Word {
  std::u16string text;
  std::size_t pairs;
  Tier tier = Tier::kFirst;
};

std::u16string numbered(std::u16string_view stem, std::size_t number) {
  const std::string digits = std::to_string(1000000 + number);
  return std::u16string(stem) + std::u16string(digits.begin() + 1, digits.end());
}

/// Every pair has a Chinese headword of its own, in another order than the English ones.
Vocabulary vocabularyOf(std::vector<Word> words) {
  std::ranges::sort(words,
                    [](const Word& a, const Word& b) { return text::compare(a.text, b.text) < 0; });
  Vocabulary vocabulary;
  for (const Word& word : words) {
    vocabulary.english.push_back(word.text);
    for (std::size_t i = 0; i < word.pairs; ++i) {
      vocabulary.chinese.push_back(numbered(u"词", vocabulary.chinese.size()));
      vocabulary.pairs.push_back({static_cast<std::uint32_t>(vocabulary.english.size() - 1),
                                  static_cast<std::uint32_t>(vocabulary.chinese.size() - 1),
                                  word.tier,
                                  static_cast<std::uint8_t>(std::min<std::size_t>(i, 255))});
    }
  }
  vocabulary.ranks.resize(vocabulary.english.size());
  const std::size_t count = std::max<std::size_t>(vocabulary.pairs.size(), 1);
  std::size_t step = 7919;
  while (std::gcd(step, count) != 1) ++step;
  for (Pair& pair : vocabulary.pairs) {
    pair.chinese = static_cast<std::uint32_t>(pair.chinese * step % count);
  }
  return vocabulary;
}

std::u16string groupOf(const std::u16string& word) {
  const std::size_t apostrophe = word.find(u'\'');
  return apostrophe == std::u16string::npos ? word : word.substr(0, apostrophe + 1);
}

/// Kept pairs in order of their headwords, and whether every headword and every apostrophe group
/// stays in its block.
void expectWholeBlocks(const Vocabulary& vocabulary, const std::vector<bool>& kept) {
  std::map<std::u16string, std::pair<std::size_t, std::size_t>> rows;
  std::size_t row = 0;
  for (std::size_t i = 0; i < kept.size(); ++i) {
    if (!kept[i]) continue;
    const std::u16string group =
        groupOf(text::toLower(vocabulary.english[vocabulary.pairs[i].english]));
    rows.try_emplace(group, row, row);
    rows[group].second = row;
    ++row;
  }
  EXPECT_EQ(row % 100, 0U);
  for (const auto& [group, range] : rows) EXPECT_EQ(range.first / 100, range.second / 100);
}

std::size_t keptCount(const std::vector<bool>& kept) {
  return static_cast<std::size_t>(std::ranges::count(kept, true));
}

std::vector<Word> singles(std::size_t count, std::u16string_view stem = u"m") {
  std::vector<Word> words;
  for (std::size_t i = 0; i < count; ++i) words.push_back({numbered(stem, i), 1});
  return words;
}

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

TEST(ChoosePairs, KeepsWordsWithTheSameTextBeforeAnApostropheTogether) {
  std::vector<Word> words = singles(95, u"a");
  for (const std::u16string tail : {u"clock", u"er", u"er the hill", u"Brien", u" boy", u"''x"}) {
    words.push_back({u"o'" + tail, 3});
  }
  words.push_back({u"O'Neill", 4});
  for (Word& word : singles(180, u"p")) words.push_back(word);
  const Vocabulary vocabulary = vocabularyOf(words);
  const std::vector<bool> kept = choosePairs(vocabulary, LookupLimits());
  EXPECT_GE(keptCount(kept), 200U);
  expectWholeBlocks(vocabulary, kept);
}

TEST(ChoosePairs, KeepsAGroupOfEightyRowsTogether) {
  std::vector<Word> words = singles(970, u"a");
  for (std::size_t i = 0; i < 40; ++i) words.push_back({numbered(u"o'", i), 2});
  for (Word& word : singles(1050, u"p")) words.push_back(word);
  for (Word& word : words) {
    if (word.pairs == 1) word.tier = Tier::kOrdinary;
  }
  const Vocabulary vocabulary = vocabularyOf(words);
  const std::vector<bool> kept = choosePairs(vocabulary, LookupLimits());
  EXPECT_EQ(keptCount(kept), 2000U);
  expectWholeBlocks(vocabulary, kept);
  for (std::size_t i = 0; i < kept.size(); ++i) {
    if (vocabulary.pairs[i].tier == Tier::kFirst) {
      EXPECT_TRUE(kept[i]);
    }
  }
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

TEST(ChoosePairs, PartsWordsThatAreEqualUpToAnApostropheOnly) {
  std::vector<Word> words = singles(40, u"a");
  words.push_back({u"o'clock", 60});
  words.push_back({u"oak", 60});
  for (Word& word : singles(40, u"p")) words.push_back(word);
  const Vocabulary vocabulary = vocabularyOf(words);
  EXPECT_EQ(keptCount(choosePairs(vocabulary, LookupLimits())), 200U);
}

/// The kept pairs of the words in an apostrophe group, each as "word/position". The group has 120
/// pairs; the other ones are those of further words, at `position` each.
std::vector<std::u16string> keptOfGroup(std::vector<Word> words, std::size_t position) {
  std::size_t pairs = 0;
  for (const Word& word : words) pairs += word.pairs;
  for (std::size_t i = pairs; i < 120; ++i) words.push_back({numbered(u"one's z", i), 1});
  for (const Word& word : singles(150, u"p")) words.push_back({word.text, 1, Tier::kOrdinary});
  Vocabulary vocabulary = vocabularyOf(words);
  for (Pair& pair : vocabulary.pairs) {
    if (!vocabulary.english[pair.english].starts_with(u"one's z")) continue;
    pair.position = static_cast<std::uint8_t>(position);
  }
  const std::vector<bool> kept = choosePairs(vocabulary, LookupLimits());
  expectWholeBlocks(vocabulary, kept);
  std::vector<std::u16string> texts;
  for (std::size_t i = 0; i < kept.size(); ++i) {
    const Pair& pair = vocabulary.pairs[i];
    const std::u16string& word = vocabulary.english[pair.english];
    if (!kept[i] || !word.starts_with(u"one's") || word.starts_with(u"one's z")) continue;
    texts.push_back(word + u'/' + static_cast<char16_t>(u'0' + pair.position));
  }
  return texts;
}

// "one's cup of tea" stood behind "one's actions are in keeping with what one says".
TEST(ChoosePairs, KeepsTheFirstPairOfEveryWordOfAnApostropheGroup) {
  using Texts = std::vector<std::u16string>;
  EXPECT_EQ(keptOfGroup({{u"one's age", 21}}, 50), Texts{u"one's age/0"});
  EXPECT_EQ(keptOfGroup({{u"one's age", 21, Tier::kImportant}}, 0).size(), 21U);
  const std::vector<Word> phrases = {{u"one's cup of tea", 1, Tier::kFirstOfPhrase}};
  EXPECT_EQ(keptOfGroup(phrases, Pair::kFirstGloss - 1), Texts());
  EXPECT_EQ(keptOfGroup(phrases, Pair::kFirstGloss), Texts{u"one's cup of tea/0"});
}

TEST(ChoosePairs, LeavesOutExplanationsOfAnApostropheGroupFirst) {
  Vocabulary vocabulary = vocabularyOf(singles(120, u"one's "));
  for (std::size_t i = 0; i < 120; ++i) {
    Pair& pair = vocabulary.pairs[i];
    const std::size_t position = i < 20 ? Pair::kFirstExplanation : Pair::kFirstGloss;
    pair.position = static_cast<std::uint8_t>(position);
    if (i >= 20) pair.tier = Tier::kFirstOfPhrase;
    if (i == 0) pair.tier = Tier::kImportantFirst;
  }
  const std::vector<bool> kept = choosePairs(vocabulary, LookupLimits());
  EXPECT_TRUE(kept[0]) << "of an important word";
  EXPECT_EQ(std::count(kept.begin() + 1, kept.begin() + 20, true), 0);
}

// A list ends with the block of its first headword, so that a cut is best just before a frequent
// word.
TEST(ChoosePairs, CutsWhereFewListsOfFrequentWordsAreShort) {
  std::vector<Word> words;
  for (std::size_t i = 0; i < 400; ++i) words.push_back({numbered(u"w", i), 1});
  for (std::size_t i = 0; i < 400; ++i) words.push_back({numbered(u"w", i) + u"s", 1, Tier::kWeb});
  Vocabulary vocabulary = vocabularyOf(words);
  const auto headwordsAfter = [&](std::u16string_view word) {
    const std::vector<bool> kept = choosePairs(vocabulary, {.maxRows = 400});
    std::size_t row = 0;
    std::size_t after = 0;
    bool found = false;
    for (std::size_t i = 0; i < kept.size(); ++i) {
      if (!kept[i]) continue;
      if (found && row % 100 == 0) break;
      found = found || vocabulary.english[vocabulary.pairs[i].english] == word;
      if (found) ++after;
      ++row;
    }
    return after;
  };
  const std::u16string last = numbered(u"w", 97);
  EXPECT_LT(headwordsAfter(last), 10U);
  const auto at = std::ranges::find(vocabulary.english, last) - vocabulary.english.begin();
  vocabulary.ranks[static_cast<std::size_t>(at)] = 20'001;
  EXPECT_LT(headwordsAfter(last), 10U);
  vocabulary.ranks[static_cast<std::size_t>(at)] = 20'000;
  EXPECT_GE(headwordsAfter(last), 20U);
}

}  // namespace
