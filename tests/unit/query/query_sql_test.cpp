#include "query/query_sql.h"

#include <gtest/gtest.h>

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

}  // namespace
