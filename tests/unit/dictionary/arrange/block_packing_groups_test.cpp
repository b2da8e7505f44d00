// English headwords that must stay together, and where the blocks between them are cut.
#include "tests/unit/dictionary/arrange/block_packing_test.h"

namespace {

using namespace block_packing_test;

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

/// A vocabulary of 400 words w000000, w000001, ... with a row each, four blocks, and as many words
/// of a less valuable tier between them. Without frequent words, every hundredth begins a block.
Vocabulary fourBlocks() {
  std::vector<Word> words;
  for (std::size_t i = 0; i < 400; ++i) words.push_back({numbered(u"w", i), 1});
  for (std::size_t i = 0; i < 400; ++i) words.push_back({numbered(u"w", i) + u"s", 1, Tier::kWeb});
  return vocabularyOf(words);
}

std::size_t indexOf(const Vocabulary& vocabulary, std::size_t number) {
  const auto at = std::ranges::find(vocabulary.english, numbered(u"w", number));
  return static_cast<std::size_t>(at - vocabulary.english.begin());
}

/// How many rows the list of a word has, which ends with its block.
std::size_t listLength(const Vocabulary& vocabulary, std::size_t number,
                       const LookupLimits& limits = {.maxRows = 400}) {
  const std::vector<bool> kept = choosePairs(vocabulary, limits);
  const std::size_t word = indexOf(vocabulary, number);
  std::size_t row = 0;
  std::size_t length = 0;
  for (std::size_t i = 0; i < kept.size(); ++i) {
    if (!kept[i]) continue;
    if (length > 0 && row % 100 == 0) break;
    if (length > 0 || vocabulary.pairs[i].english == word) ++length;
    ++row;
  }
  return length;
}

// A list ends with the block of its first headword, so that a cut is best just before a frequent
// word.
TEST(ChoosePairs, CutsWhereFewListsOfFrequentWordsAreShort) {
  Vocabulary vocabulary = fourBlocks();
  EXPECT_EQ(listLength(vocabulary, 97), 3U);
  vocabulary.ranks[indexOf(vocabulary, 97)] = 20'001;
  EXPECT_EQ(listLength(vocabulary, 97), 3U);
  vocabulary.ranks[indexOf(vocabulary, 97)] = 20'000;
  EXPECT_GE(listLength(vocabulary, 97), 20U);
}

// The cut before w000096 makes the list of w000077 short, which is better than a list of four rows.
TEST(ChoosePairs, ShortensAListRatherThanLeavingAVeryShortOne) {
  Vocabulary vocabulary = fourBlocks();
  for (const std::size_t number : {77U, 96U, 115U}) {
    vocabulary.ranks[indexOf(vocabulary, number)] = 1;
  }
  EXPECT_GE(listLength(vocabulary, 96), 20U);
  EXPECT_GE(listLength(vocabulary, 77), 10U);
}

// The cut is moved until the list has so many rows. The first words are the least valuable ones, so
// that they make room for those before the cut.
TEST(ChoosePairs, TakesAListOfTenRowsForShortAndOneOfTwentyForLong) {
  const auto lengthOf = [](std::size_t number) {
    Vocabulary vocabulary = fourBlocks();
    vocabulary.ranks[indexOf(vocabulary, number)] = 1;
    for (Pair& pair : vocabulary.pairs) pair.position = pair.english < 10 ? 1 : 0;
    return listLength(vocabulary, number);
  };
  EXPECT_EQ(lengthOf(91), 10U);
  EXPECT_EQ(lengthOf(90), 10U);
  EXPECT_EQ(lengthOf(82), 20U);
  EXPECT_EQ(lengthOf(80), 20U);
}

// The ten words after w000095 share a Chinese headword of which one row is reached.
TEST(ChoosePairs, CountsNoWordWithoutRowsForTheLengthOfAList) {
  std::vector<Word> words;
  for (std::size_t i = 0; i < 400; ++i) {
    words.push_back({numbered(u"w", i), 1});
    words.push_back({numbered(u"w", i) + u"s", 1, Tier::kWeb});
  }
  for (std::size_t i = 0; i < 10; ++i) words.push_back({numbered(u"w000095t", i), 1});
  Vocabulary vocabulary = vocabularyOf(words);
  for (Pair& pair : vocabulary.pairs) {
    if (!vocabulary.english[pair.english].starts_with(u"w000095t")) continue;
    pair.chinese = vocabulary.pairs[0].chinese;
    pair.position = 1;
  }
  const LookupLimits limits{.maxRows = 400, .maxChineseRows = 1};
  EXPECT_EQ(listLength(vocabulary, 95, limits), 5U);
  vocabulary.ranks[indexOf(vocabulary, 95)] = 1;
  EXPECT_GE(listLength(vocabulary, 95, limits), 20U);
}

}  // namespace
