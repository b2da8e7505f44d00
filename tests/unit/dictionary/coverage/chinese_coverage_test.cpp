#include "dictionary/coverage/chinese_coverage.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <unordered_set>
#include <vector>

#include "tests/support/data/small_dictionary.h"
#include "tests/support/data/temp_folder.h"

namespace {

using dictionary::ChineseCoverage;
using dictionary::WordFrequency;
using Headwords = std::unordered_set<std::u16string>;

/// `count` words of two characters, 一一, 一丁 and so on.
std::vector<WordFrequency> manyWords(std::size_t count) {
  std::vector<WordFrequency> words;
  for (std::size_t i = 0; i < count; ++i) {
    words.push_back(
        {{static_cast<char16_t>(0x4E00 + i / 200), static_cast<char16_t>(0x4E00 + i % 200)},
         1,
         false});
  }
  return words;
}

TEST(ChineseCoverage, CountsWordsOfTwoCharactersThatAreNoPersonalNames) {
  const ChineseCoverage coverage = dictionary::chineseCoverage(
      {{u"的", 9, false}, {u"张三", 8, true}, {u"这个", 7, false}, {u"基站", 6, false}},
      Headwords{u"这个"});
  EXPECT_EQ(coverage.words, 2U);
  EXPECT_EQ(coverage.missing, std::vector<std::u16string>{u"基站"});
  EXPECT_EQ(coverage.ranks, std::vector<std::size_t>{2});
}

TEST(ChineseCoverage, PrintsTheSharesOfTheMostFrequentWords) {
  const std::vector<WordFrequency> words = manyWords(21'000);
  Headwords headwords;
  for (const WordFrequency& entry : words) headwords.insert(entry.word);
  headwords.erase(words[999].word);     // the last of the first 1,000
  headwords.erase(words[1'000].word);   // the first after them
  headwords.erase(words[20'000].word);  // counts no more
  const ChineseCoverage coverage = dictionary::chineseCoverage(words, headwords);
  EXPECT_EQ(coverage.words, 20'000U);
  EXPECT_EQ(coverage.missingAmong(1'000), 1U);
  EXPECT_EQ(coverage.missingAmong(5'000), 2U);
  std::ostringstream out;
  dictionary::printChineseCoverage(coverage, out);
  EXPECT_NE(out.str().find("of the 1,000 most frequent Chinese words 1 have no row (0.1 %)\n"),
            std::string::npos);
  EXPECT_NE(out.str().find("of the 20,000 most frequent Chinese words 2 have no row (0.0 %)\n"),
            std::string::npos);
}

TEST(ChineseCoverage, LeavesOutSharesOfMoreWordsThanThereAre) {
  std::ostringstream out;
  dictionary::printChineseCoverage(dictionary::chineseCoverage(manyWords(1'000), {}), out);
  EXPECT_NE(out.str().find("of the 1,000 most"), std::string::npos);
  EXPECT_EQ(out.str().find("of the 5,000 most"), std::string::npos);
}

TEST(ChineseCoverage, ReadsTheDatabaseAndTheList) {
  const support::TempFolder folder;
  std::string list;
  for (int i = 0; i < 999; ++i) list += "没有" + std::string("之词") + " 1 n\n";
  support::writeFile(folder.file(u"list.txt"), "算盘 5 n\n" + list);
  std::ostringstream out;
  dictionary::reportChineseCoverage(support::smallDatabase(), folder.file(u"list.txt"), out);
  EXPECT_NE(out.str().find("of the 1,000 most frequent Chinese words 999 have no row (99.9 %)"),
            std::string::npos)
      << out.str();
}

}  // namespace
