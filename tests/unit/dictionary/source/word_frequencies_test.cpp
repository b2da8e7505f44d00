#include "dictionary/source/word_frequencies.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "dictionary/console.h"

namespace {

using dictionary::WordFrequency;
using dictionary::WordRanks;

std::vector<WordFrequency> read(const std::string& text) {
  std::istringstream stream(text);
  return dictionary::readWordFrequencies(stream);
}

TEST(WordFrequencies, SortTheMostFrequentFirst) {
  const std::vector<WordFrequency> words = read("之间 7 f\n这个 20 r\n时候 7 n\n");
  ASSERT_EQ(words.size(), 3U);
  EXPECT_EQ(words[0].word, u"这个");
  EXPECT_EQ(words[0].frequency, 20U);
  EXPECT_EQ(words[1].word, u"之间");  // before the other one in the list
  EXPECT_EQ(words[2].word, u"时候");
}

TEST(WordFrequencies, KnowPersonalNames) {
  const std::vector<WordFrequency> words = read("张三 3 nr\n约翰 2 nrt\n北京 1 ns\n");
  EXPECT_TRUE(words[0].personalName);
  EXPECT_TRUE(words[1].personalName);
  EXPECT_FALSE(words[2].personalName);
}

TEST(WordFrequencies, SkipWhatIsNoChineseWord) {
  const std::vector<WordFrequency> words =
      read("AT&T 3 nz\nB超 3 n\n\n基站\n基站 x n\n基站 -1 n\n基站 99999999999 n\n");
  ASSERT_EQ(words.size(), 1U);
  EXPECT_EQ(words[0].word, u"B超");
}

TEST(WordFrequencies, MustBeThere) {
  EXPECT_THROW(read(""), dictionary::Failure);
  EXPECT_THROW(read("word,translation\n"), dictionary::Failure);
  EXPECT_THROW(dictionary::readWordFrequencies(std::filesystem::path("no such file")),
               dictionary::Failure);
}

TEST(WordRanks, CountNoPersonalNames) {
  const WordRanks ranks = dictionary::rankWords(read("的 9 uj\n张三 5 nr\n这个 3 r\n"));
  EXPECT_EQ(ranks, (WordRanks{{u"的", 1}, {u"这个", 2}}));
}

TEST(WordRanks, KeepTheBetterOfTwo) {
  EXPECT_EQ(dictionary::rankWords(read("会 9 v\n是 5 v\n会 3 n\n")).at(u"会"), 1U);
}

}  // namespace
