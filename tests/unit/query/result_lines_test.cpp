#include "query/result_lines.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/unit/support/sample_database.h"

namespace {

using query::lineWidth;

/// The rows of a dictionary with these words; the meaning of each is "m".
class ResultLines : public testing::Test {
 protected:
  data::DataControl with(const std::vector<std::string>& words) {
    std::string sql = "create table t (word text collate lexilo, meaning text collate lexilo)";
    for (const std::string& word : words) sql += ";insert into t values ('" + word + "','m')";
    std::filesystem::remove(file_);
    support::makeDatabase(file_, sql);
    return support::opened(file_, u"select word,meaning from t");
  }
  std::int16_t widthOf(const std::vector<std::string>& words) {
    data::DataControl control = with(words);
    return query::sampleWidth(control.recordset());
  }

  support::TempFolder folder_;
  std::filesystem::path file_ = folder_.file(u"kk.dat");
};

TEST(LineWidth, IsTheMeanAndTen) { EXPECT_EQ(lineWidth(12, 3), 14); }

TEST(LineWidth, RoundsToTheNearest) {
  EXPECT_EQ(lineWidth(13, 3), 14);
  EXPECT_EQ(lineWidth(14, 3), 15);
  EXPECT_EQ(lineWidth(0, 5), 10);
}

TEST(LineWidth, RoundsHalvesToEven) {
  EXPECT_EQ(lineWidth(5, 2), 12);
  EXPECT_EQ(lineWidth(7, 2), 14);
  EXPECT_EQ(lineWidth(45, 10), 14);
  EXPECT_EQ(lineWidth(55, 10), 16);
}

TEST(LineWidth, HasSixteenBits) {
  EXPECT_EQ(lineWidth(32757, 1), 32767);
  EXPECT_THROW(static_cast<void>(lineWidth(32758, 1)), std::overflow_error);
}

TEST_F(ResultLines, FewerThanTenRowsAreAllSampled) {
  EXPECT_EQ(widthOf({"abcd", "ab"}), 13);
  EXPECT_EQ(widthOf({"abc"}), 13);
}

TEST_F(ResultLines, TheEleventhRowDoesNotCount) {
  std::vector<std::string> words(10, "ab");
  words.emplace_back("a very long word that would move the mean");
  EXPECT_EQ(widthOf(words), 12);
  words.insert(words.begin() + 9, words.back());
  words.erase(words.begin());
  EXPECT_GT(widthOf(words), 12);
}

TEST_F(ResultLines, ChineseWordsCountTwoForEveryUnit) {
  EXPECT_EQ(widthOf({"中文"}), 14);
  EXPECT_EQ(widthOf({"中a"}), 14);
}

TEST_F(ResultLines, ALineIsThePaddedWordAndTheMeaning) {
  data::DataControl control = with({"cat", "a word longer than the column"});
  data::RecordSet& rows = control.recordset();
  EXPECT_EQ(query::resultLine(rows, 6), u"cat   m");
  rows.moveNext();
  EXPECT_EQ(query::resultLine(rows, 6), u"a word longer than the column  m");
}

}  // namespace
