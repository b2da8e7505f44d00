// Tables in memory, so that every headword and index row is the test's own.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "dictionary/check/reach.h"
#include "text/order.h"

namespace {

using dictionary::CheckResult;
using dictionary::Rule;
using Words = std::vector<std::u16string>;

/// `count` headwords of one row each: Han characters or numbers, in the text order.
Words headwords(std::size_t count, bool chinese) {
  Words words;
  for (std::size_t i = 0; i < count; ++i) {
    const std::string number = std::to_string(10000 + i);
    words.push_back(chinese ? std::u16string(1, static_cast<char16_t>(0x4E00 + i))
                            : std::u16string(number.begin(), number.end()));
  }
  std::ranges::sort(words, [](const auto& a, const auto& b) { return text::compare(a, b) < 0; });
  return words;
}

/// Gives the rows from `first` to `last`, from 1, one headword.
void join(Words& words, std::size_t first, std::size_t last) {
  std::fill(words.begin() + static_cast<std::ptrdiff_t>(first),
            words.begin() + static_cast<std::ptrdiff_t>(last), words[first - 1]);
}

/// The result for tables with these headwords and the indexes that belong to them.
CheckResult check(const Words& english, const Words& chinese) {
  dictionary::GeneralTables tables;
  tables.edict.words = english;
  tables.cdict.words = chinese;
  for (std::size_t row = 100; row <= english.size(); row += 100) {
    tables.englishIndex.push_back(english[row - 1]);
  }
  for (std::size_t row = 100; row <= chinese.size(); row += 100) {
    tables.chineseIndex.push_back(chinese[row - 1]);
  }
  CheckResult result;
  dictionary::checkReach(tables, result);
  return result;
}

TEST(CheckReach, CountsHeadwords) {
  Words english = headwords(300, false);
  Words chinese = headwords(300, true);
  join(english, 150, 190);
  join(chinese, 110, 130);
  const CheckResult result = check(english, chinese);
  EXPECT_TRUE(result.findings.empty());
  EXPECT_EQ(result.englishHeadwords, 260U);
  EXPECT_EQ(result.chineseHeadwords, 280U);
  EXPECT_EQ(result.chineseLists, 280U);
  EXPECT_EQ(result.cutLists, 0U);
}

TEST(CheckReach, NamesTheRowsOfAnEnglishHeadwordThatCrossesABlock) {
  Words english = headwords(300, false);
  join(english, 199, 201);
  const CheckResult result = check(english, headwords(300, true));
  ASSERT_EQ(result.findings.count(Rule::kEnglishReach), 1U);
  EXPECT_EQ(result.findings.examples(Rule::kEnglishReach).front(),
            "[edict] row 199 «10198», rows 199-201, searched 0-200");
}

// 201 rows that end at an index row are as many as a search reaches back.
TEST(CheckReach, AllowsAChineseHeadwordTwoHundredAndOneRows) {
  Words chinese = headwords(500, true);
  join(chinese, 100, 300);
  EXPECT_TRUE(check({}, chinese).findings.empty());
  join(chinese, 99, 300);
  const CheckResult result = check({}, chinese);
  ASSERT_EQ(result.findings.count(Rule::kChineseReach), 1U);
  const std::string example = result.findings.examples(Rule::kChineseReach).front();
  EXPECT_EQ(example.find("[cdict] row 99 «"), 0U);
  EXPECT_NE(example.find("», rows 99-300, searched 100-400"), std::string::npos);
}

// The headword in rows 300 and 301 is in the lists of up to 75 headwords: those of rows 226 to 299
// end before row 301.
TEST(CheckReach, CountsListsOfSeventyFiveHeadwords) {
  Words chinese = headwords(500, true);
  join(chinese, 300, 301);
  EXPECT_EQ(check({}, chinese).cutLists, 74U);
}

std::vector<std::size_t> lengthsOf(const Words& english, const Words& words) {
  dictionary::GeneralTables tables;
  tables.edict.words = english;
  for (std::size_t row = 100; row <= english.size(); row += 100) {
    tables.englishIndex.push_back(english[row - 1]);
  }
  return dictionary::listLengths(tables, words);
}

TEST(ListLengths, CountHeadwordsUpToTheEndOfTheBlock) {
  Words english = headwords(300, false);
  join(english, 195, 198);
  EXPECT_EQ(lengthsOf(english, {english[99]}), std::vector<std::size_t>{1});
  EXPECT_EQ(lengthsOf(english, {english[98]}), std::vector<std::size_t>{2});
  EXPECT_EQ(lengthsOf(english, {english[190]}), std::vector<std::size_t>{7});
  EXPECT_EQ(lengthsOf(english, {english[100]}), std::vector<std::size_t>{75});
}

TEST(ListLengths, ComeShortestFirstAndLeaveOutWordsWithoutRows) {
  const Words english = headwords(200, false);
  EXPECT_EQ(lengthsOf(english, {english[20], u"none", english[150], u"99999", english[90]}),
            (std::vector<std::size_t>{10, 50, 75}));
  EXPECT_EQ(lengthsOf({}, {u"word"}), std::vector<std::size_t>{});
}

}  // namespace
