#include "query/subject_search.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "query/catalogue.h"
#include "tests/support/data/sample_database.h"

namespace {

using query::makeQuerySql;

std::u16string sqlFor(std::u16string text, std::u16string_view mode) {
  return makeQuerySql(text, mode, u"T").sql;
}

TEST(QuerySql, EasySearchesForTheBeginning) {
  EXPECT_EQ(sqlFor(u"heart", query::kEasy),
            u"select top 100 word,meaning from T where word like 'heart%' order by word");
}

TEST(QuerySql, ComplexSearchesForAPart) {
  EXPECT_EQ(sqlFor(u"heart", query::kComplex),
            u"select top 200 word,meaning from T where word like '%heart%' order by word");
}

TEST(QuerySql, ChineseTextIsSoughtAmongTheMeanings) {
  EXPECT_EQ(sqlFor(u"心", query::kEasy),
            u"select top 100 word as meaning,meaning as word from T where meaning like '心%'"
            u" order by meaning");
  EXPECT_EQ(sqlFor(u"心", query::kComplex),
            u"select top 200 word as meaning,meaning as word from T where meaning like '%心%'"
            u" order by meaning");
}

TEST(QuerySql, OneChineseCharacterIsEnough) {
  std::u16string text = u"ab中";
  EXPECT_EQ(makeQuerySql(text, query::kEasy, u"T").column, u"meaning");
  text = u"café";
  EXPECT_EQ(makeQuerySql(text, query::kEasy, u"T").column, u"word");
}

TEST(QuerySql, TheUsersWildcardsBecomeThoseOfLike) {
  EXPECT_EQ(sqlFor(u"a*b?", query::kEasy),
            u"select top 100 word,meaning from T where word like 'a%b_%' order by word");
}

TEST(QuerySql, QuotesAreDoubled) {
  EXPECT_EQ(sqlFor(u"it's", query::kEasy),
            u"select top 100 word,meaning from T where word like 'it''s%' order by word");
}

TEST(QuerySql, TheCallersTextIsRewritten) {
  std::u16string text = u"a*b?'";
  static_cast<void>(makeQuerySql(text, query::kEasy, u"T"));
  EXPECT_EQ(text, u"a%b_''");
}

TEST(QuerySql, BlanksAreSearchedAsTyped) {
  EXPECT_EQ(sqlFor(u"  ", query::kEasy),
            u"select top 100 word,meaning from T where word like '  %' order by word");
}

TEST(QuerySql, AnotherModeHasNoText) {
  std::u16string text = u"心?";
  const query::Search search = makeQuerySql(text, u"easy", u"T");
  EXPECT_EQ(search.sql, u"");
  EXPECT_EQ(search.column, u"meaning");
  EXPECT_EQ(text, u"心_");
}

TEST(QuerySql, SpecialTakesBothTextsAsTheyAre) {
  EXPECT_EQ(query::specialSql(u"T", u"heat", u"热"),
            u"select top 200 word,meaning from T where  word like '%heat%' and meaning like"
            u" '%热%'");
  EXPECT_EQ(query::specialSql(u"T", u"it's*", u"?"),
            u"select top 200 word,meaning from T where  word like '%it's*%' and meaning like"
            u" '%?%'");
}

TEST(QuerySql, SpecialWithoutADictionaryNamesNoTable) {
  EXPECT_EQ(query::specialSql(u"", u"a", u"的"),
            u"select top 200 word,meaning from  where  word like '%a%' and meaning like '%的%'");
}

TEST(QuerySql, SpecialIsRecordedInTheInputBox) {
  EXPECT_EQ(query::specialInput(u"heat", u"热"), u"特殊查询 heat\uFF1A热");
}

TEST(QuerySql, TheCatalogueQueriesKeepTheirBlanks) {
  EXPECT_EQ(query::kShownDictionaries, u"select * from  [Index]  where Isshow = 1 order by Cname");
  EXPECT_EQ(query::kAllDictionaries, u"select * from [index] order by Cname");
}

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
  std::swap(words[9], words[10]);
  EXPECT_GT(widthOf(words), 12) << "the tenth does";
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
