#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "data/headword_lookup.h"
#include "tests/support/data/sample_dictionary.h"
#include "text/order.h"
#include "text/query_text.h"

namespace {

using data::Bounds;
using data::DataControl;
using data::HeadwordLookup;
using data::meaningLines;
using data::MeaningText;
using support::SampleDictionary;
using support::TempFolder;
using Pair = SampleDictionary::Pair;
using Texts = std::vector<std::u16string>;

/// The whole way of a lookup, on a small dictionary.
class HeadwordLookupTest : public testing::Test {
 protected:
  HeadwordLookupTest() {
    dictionary_.writeTo(file_);
    control_.setConnectionString(support::connectionStringFor(file_));
    words_ = data::readIndexWords(control_);
  }

  Texts run(const std::u16string& sql, std::u16string_view field) {
    control_.setRecordSource(sql);
    control_.refresh();
    return support::column(control_.recordset(), field);
  }

  Texts list(HeadwordLookup& lookup, std::u16string word) {
    user::escapeQuote(word);
    return run(lookup.makeStrSql(user::getEorC(word), word, control_), u"word");
  }

  Texts meanings(HeadwordLookup& lookup, std::u16string word) {
    user::escapeQuote(word);
    return run(lookup.findword(user::getEorC(word), word, control_), u"meaning");
  }

  /// What a list has to show: the headwords not before `word` in the rows within `bounds`.
  Texts expectedList(std::u16string Pair::*side, std::u16string_view word, Bounds bounds) const {
    Texts result;
    const std::vector<Pair> pairs = dictionary_.ordered(side);
    for (std::size_t i = 0; i < pairs.size() && result.size() < 75; ++i) {
      const auto row = static_cast<std::int64_t>(i) + 1;
      if (row < bounds.lower || row > bounds.upper) continue;
      if (text::compare(pairs[i].*side, word) < 0) continue;
      if (result.empty() || !text::equal(result.back(), pairs[i].*side)) {
        result.push_back(pairs[i].*side);
      }
    }
    return result;
  }

  TempFolder folder_;
  std::filesystem::path file_ = folder_.file(u"kk.dat");
  SampleDictionary dictionary_;
  DataControl control_;
  data::IndexWords words_;
};

constexpr data::LookupOptions kPopup{.lambdaUpperKey = true, .chineseMeaningFindsBounds = true};

TEST_F(HeadwordLookupTest, ListsTheHeadwordsThatFollowEnglishInput) {
  HeadwordLookup lookup(words_, {});
  for (const char16_t* word : {u"a", u"bit", u"da", u"DATA", u"it's", u"it", u"m%", u"qq", u"zz"}) {
    std::u16string escaped = word;
    user::escapeQuote(escaped);
    const std::u16string sql = lookup.makeStrSql(u"E", escaped, control_);
    EXPECT_EQ(sql, data::englishListSql(lookup.bounds(), escaped));
    const Texts listed = run(sql, u"Word");
    EXPECT_EQ(listed, expectedList(&Pair::english, word, lookup.bounds()));
    EXPECT_FALSE(listed.empty());
    EXPECT_GE(text::compare(listed.front(), word), 0);
  }
}

TEST_F(HeadwordLookupTest, ListsTheHeadwordsThatFollowChineseInput) {
  HeadwordLookup lookup(words_, {});
  for (const char16_t* word : {u"阿", u"一", u"数据", u"数", u"做", u"位", u"发a", u"大%", u"！"}) {
    const std::u16string sql = lookup.makeStrSql(u"C", word, control_);
    EXPECT_EQ(sql, data::chineseListSql(lookup.bounds(), word));
    const Texts listed = run(sql, u"Word");
    EXPECT_EQ(listed, expectedList(&Pair::chinese, word, lookup.bounds()));
    EXPECT_FALSE(listed.empty());
  }
}

TEST_F(HeadwordLookupTest, ShowsAHeadwordOnceHoweverManyRowsItHas) {
  HeadwordLookup lookup(words_, {});
  const Texts listed = list(lookup, u"bit");
  EXPECT_EQ(std::count(listed.begin(), listed.end(), u"bit"), 1);
  EXPECT_EQ(listed.front(), u"bit");
  EXPECT_EQ(meanings(lookup, u"bit"), (Texts{u"比特", u"位", u"一点"}));
}

TEST_F(HeadwordLookupTest, FindsEveryEnglishHeadwordFromItsList) {
  HeadwordLookup lookup(words_, {});
  EXPECT_EQ(meanings(lookup, list(lookup, u"data b").front()), Texts{u"数据库"});
  EXPECT_EQ(meanings(lookup, list(lookup, u"it's").front()), Texts{u"它是"});
  EXPECT_EQ(meanings(lookup, u"DATA"), Texts{u"数据"});
  EXPECT_EQ(meanings(lookup, u"dat"), Texts{});
}

TEST_F(HeadwordLookupTest, FindsChineseHeadwordsWithTheBoundsOfTheirList) {
  HeadwordLookup lookup(words_, {});
  EXPECT_EQ(list(lookup, u"数据").front(), u"数据");
  const std::u16string index = control_.recordSource();
  const Bounds bounds = lookup.bounds();
  EXPECT_EQ(lookup.findword(u"C", u"数据", control_), data::chineseMeaningSql(bounds, u"数据"));
  EXPECT_EQ(control_.recordSource(), index) << "no index query runs";
  EXPECT_EQ(meanings(lookup, u"数据"), (Texts{u"data", u"datum"}));
  EXPECT_EQ(lookup.findword(u"C", u"阿阿阿", control_), data::chineseMeaningSql(bounds, u"阿阿阿"));
  HeadwordLookup fresh(words_, {});
  EXPECT_EQ(meanings(fresh, u"数据"), Texts{}) << "there was no list before";
}

TEST_F(HeadwordLookupTest, FindsChineseHeadwordsAnewForThePopup) {
  HeadwordLookup popup(words_, kPopup);
  EXPECT_EQ(meanings(popup, u"数据"), (Texts{u"data", u"datum"}));
  EXPECT_EQ(meanings(popup, u"位"), Texts{u"bit"});
  EXPECT_EQ(meanings(popup, u"bit"), (Texts{u"比特", u"位", u"一点"}));
  EXPECT_EQ(meanings(popup, u"it's"), Texts{u"它是"});
  EXPECT_EQ(meanings(popup, u"bits"), Texts{});
}

TEST_F(HeadwordLookupTest, RunsWithTheFormerBoundsAfterTheLastIndexWord) {
  HeadwordLookup lookup(words_, {});
  EXPECT_EQ(list(lookup, u"zzzzz"), Texts{}) << "both bounds are 0 at first";
  list(lookup, u"ma");
  const Bounds bounds = lookup.bounds();
  EXPECT_EQ(lookup.makeStrSql(u"E", u"zzzzz", control_), data::englishListSql(bounds, u"zzzzz"));
}

TEST(MeaningText, PutsOneMeaningOnALine) {
  const MeaningText text = meaningLines(u"bit", {u"位", u"比特"});
  EXPECT_EQ(text.body, u" bit\r\n 位；\r\n 比特");
  EXPECT_EQ(text.headLength, 6U);
}

TEST(MeaningText, HasNoSemicolonAfterTheOnlyMeaning) {
  EXPECT_EQ(meaningLines(u"word", {u"词"}).body, u" word\r\n 词");
}

TEST(MeaningText, ShowsDoubledQuotesAsTheyAre) {
  const MeaningText text = meaningLines(u"it''s", {u"它是"});
  EXPECT_EQ(text.body, u" it''s\r\n 它是");
  EXPECT_EQ(text.headLength, 8U);
}

TEST(MeaningText, HasOnlyTheHeadWithoutMeanings) {
  EXPECT_EQ(meaningLines(u"x", {}).body, u" x\r\n");
  EXPECT_EQ(meaningLines(u"x", {}).headLength, 4U);
}

TEST(MeaningText, ReadsTheMeaningsOfAllRows) {
  const support::TempFolder folder;
  support::makeDatabase(folder.file(u"kk.dat"),
                        "create table t (a text); insert into t values ('位'),('比特'),('一点')");
  data::DataControl control =
      support::opened(folder.file(u"kk.dat"), u"select a as Meaning from t");
  control.recordset().moveLast();
  const std::vector<std::u16string> all{u"位", u"比特", u"一点"};
  EXPECT_EQ(data::readMeanings(control.recordset()), all);
  EXPECT_EQ(data::readMeanings(control.recordset()), all);
  data::RecordSet none;
  EXPECT_TRUE(data::readMeanings(none).empty());
}

}  // namespace
