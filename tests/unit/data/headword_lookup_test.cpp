#include "data/headword_lookup.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

#include "tests/support/data/sample_database.h"
#include "tests/support/data/statement_watch.h"
#include "text/query_text.h"

namespace {

using data::Bounds;
using data::DataControl;
using data::HeadwordLookup;
using data::IndexWords;
using data::LookupOptions;
using support::TempFolder;

constexpr LookupOptions kWindow{};
constexpr LookupOptions kPopup{.lambdaUpperKey = true, .chineseMeaningFindsBounds = true};

/// The bounds of English input; no database is asked.
Bounds boundsOf(const IndexWords& words, LookupOptions options, std::u16string_view word) {
  DataControl control;
  HeadwordLookup lookup(words, options);
  lookup.getBound(word, control);
  return lookup.bounds();
}

const IndexWords kWords{u"", u"ab0", u"abc", u"bit", u"it''s", u"zebra"};

TEST(EnglishBounds, TakeTheFirstIndexWordNotBeforeTheText) {
  EXPECT_EQ(boundsOf(kWords, kWindow, u"abd"), (Bounds{100, 300}));
  EXPECT_EQ(boundsOf(kWords, kWindow, u"bit"), (Bounds{100, 300}));
  EXPECT_EQ(boundsOf(kWords, kWindow, u"bits"), (Bounds{200, 400}));
  EXPECT_EQ(boundsOf(kWords, kWindow, u"BIT"), (Bounds{100, 300}));
  EXPECT_EQ(boundsOf(kWords, kWindow, u"zebra"), (Bounds{300, 500}));
}

TEST(EnglishBounds, ReachBelowZeroInTheFirstBlock) {
  EXPECT_EQ(boundsOf(kWords, kWindow, u"a"), (Bounds{-100, 100}));
  EXPECT_EQ(boundsOf(kWords, kWindow, u""), (Bounds{-100, 100}));
}

TEST(EnglishBounds, StayWhereTheyAreAfterTheLastIndexWord) {
  DataControl control;
  HeadwordLookup lookup(kWords, kWindow);
  lookup.getBound(u"zz", control);
  EXPECT_EQ(lookup.bounds(), (Bounds{0, 0}));
  lookup.getBound(u"bit", control);
  lookup.getBound(u"zz", control);
  EXPECT_EQ(lookup.bounds(), (Bounds{100, 300}));
  EXPECT_EQ(boundsOf(IndexWords{u""}, kWindow, u"a"), (Bounds{0, 0}));
}

TEST(EnglishBounds, SearchWithWildcardsTurnedIntoZeros) {
  EXPECT_EQ(boundsOf(kWords, kWindow, u"ab%"), (Bounds{-100, 100}));
  EXPECT_EQ(boundsOf(kWords, kWindow, u"AB_"), (Bounds{-100, 100}));
  EXPECT_EQ(boundsOf(kWords, kWindow, u"z%"), (Bounds{300, 500}));
}

TEST(EnglishBounds, ComparesTheTextWithItsQuotesDoubled) {
  EXPECT_EQ(boundsOf(kWords, kWindow, u"it''s"), (Bounds{200, 400}));
  EXPECT_EQ(boundsOf(kWords, kWindow, u"it's"), (Bounds{300, 500}));
}

TEST(EnglishBounds, ComparesByCodeUnit) {
  const IndexWords words{u"", u"a-b", u"a\u00E9", u"\u00E9", u"\u4E00"};
  EXPECT_EQ(boundsOf(words, kWindow, u"a.b"), (Bounds{0, 200}));
  EXPECT_EQ(boundsOf(words, kWindow, u"\u00C9"), (Bounds{100, 300}));
  EXPECT_EQ(boundsOf(words, kWindow, u"\u00FF"), (Bounds{200, 400}));
}

TEST(EnglishBounds, OfThePopupFollowTheLoopWhenItsKeysDiffer) {
  // Every word from the low key on moves the lower bound, until the high key is reached.
  EXPECT_EQ(boundsOf(kWords, kPopup, u"ab%"), (Bounds{100, 300}));
  EXPECT_EQ(boundsOf(kWords, kPopup, u"bit"), (Bounds{100, 300}));
  // No word reaches the high key: the upper bound stays, the lower one is that of the last word.
  EXPECT_EQ(boundsOf(kWords, kPopup, u"z_"), (Bounds{300, 0}));
}

TEST(EnglishBounds, ReachTheLastSlotThatAnIndexMayHave) {
  IndexWords words;
  for (int slot = 0; slot < 32'767; ++slot) words.push_back(u"a");
  words.push_back(u"b");
  EXPECT_EQ(boundsOf(words, kWindow, u"b"), (Bounds{3'276'500, 3'276'700}));
}

/// A database whose Chinese index holds 100 blocks from `words`, with their numbers.
class ChineseBoundsTest : public testing::Test {
 protected:
  void makeIndex(const std::string& values) {
    support::makeDatabase(file_,
                          "create table cdictidx (word text collate lexilo, id integer);"
                          "insert into cdictidx values " +
                              values);
    control_.setConnectionString(support::connectionStringFor(file_));
  }

  Bounds boundsOf(std::u16string_view word) {
    lookup_.getBound(word, control_);
    return lookup_.bounds();
  }

  TempFolder folder_;
  std::filesystem::path file_ = folder_.file(u"kk.dat");
  IndexWords words_{u"", u"zebra"};
  HeadwordLookup lookup_{words_, kWindow};
  DataControl control_;
};

TEST_F(ChineseBoundsTest, LieBetweenTheIndexRowsAround) {
  makeIndex("('阿',1),('发',2),('法律',3),('数据',4),('在',5),('做做做做',6)");
  EXPECT_EQ(boundsOf(u"法"), (Bounds{0, 400}));
  EXPECT_EQ(boundsOf(u"法律"), (Bounds{100, 400}));
  EXPECT_EQ(boundsOf(u"数据"), (Bounds{200, 500}));
  EXPECT_EQ(boundsOf(u"爱"), (Bounds{-100, 200}));
}

TEST_F(ChineseBoundsTest, AreAtMostFiveHundredRowsWide) {
  makeIndex("('阿',1),('在',9)");
  EXPECT_EQ(boundsOf(u"发"), (Bounds{-100, 400}));
}

TEST_F(ChineseBoundsTest, BeforeAndAfterAllIndexWords) {
  makeIndex("('发',7),('在',9)");
  EXPECT_EQ(boundsOf(u"阿"), (Bounds{0, 500}));
  EXPECT_EQ(boundsOf(u"做"), (Bounds{700, 1200}));
}

TEST_F(ChineseBoundsTest, OfAnEmptyIndex) {
  makeIndex("('发',7); delete from cdictidx");
  EXPECT_EQ(boundsOf(u"阿"), (Bounds{0, 500}));
}

TEST_F(ChineseBoundsTest, SearchWithWildcardsAtBothEnds) {
  makeIndex("('0',1),('发0',2),('发现',3),('发做做',4),('发做做做',5),('在',6)");
  EXPECT_EQ(boundsOf(u"发%"), (Bounds{0, 500}));
  EXPECT_EQ(boundsOf(u"发_"), (Bounds{0, 500}));
}

TEST_F(ChineseBoundsTest, EndAtTheLastRowThatThereMayBe) {
  makeIndex("('发',10598)");
  EXPECT_EQ(boundsOf(u"做"), (Bounds{1'059'600, 1'060'000}));
}

TEST_F(ChineseBoundsTest, AreFoundTwiceForAList) {
  constexpr std::string_view kIndexQuery = "from [cdictidx] where";
  support::StatementWatch watch;
  makeIndex("('发',7),('在',9)");
  boundsOf(u"数");
  static_cast<void>(watch.take(kIndexQuery));
  boundsOf(u"数");
  const auto once = watch.take(kIndexQuery);
  EXPECT_GE(once, 2);
  const Bounds bounds = lookup_.bounds();
  lookup_.makeStrSql(user::kChinese, u"数", control_);
  EXPECT_EQ(watch.take(kIndexQuery), 2 * once);
  EXPECT_EQ(lookup_.bounds(), bounds);
  // What the watch was put on goes before it.
  control_ = DataControl();
}

TEST_F(ChineseBoundsTest, AreReplacedByEveryLookup) {
  makeIndex("('发',7),('在',9)");
  boundsOf(u"做");
  EXPECT_EQ(boundsOf(u"阿"), (Bounds{0, 500}));
}

TEST_F(ChineseBoundsTest, LeaveTheSecondIndexQueryInTheControl) {
  makeIndex("('发',7),('在',9),('做做做做',11)");
  boundsOf(u"数");
  EXPECT_EQ(control_.recordSource(), u"select * from [cdictidx] where word>= '数做做'");
  EXPECT_EQ(control_.recordset().recordCount(), 2U);
  EXPECT_EQ(control_.recordset().field(u"word").text, u"在");
}

TEST_F(ChineseBoundsTest, FailForRowNumbersBeyondThirtyTwoBits) {
  makeIndex("('发',21474839),('在',21474836)");
  EXPECT_THROW(boundsOf(u"饭"), std::overflow_error);
  support::Writer(file_).run("update cdictidx set id=9223372036854775807");
  EXPECT_THROW(boundsOf(u"饭"), std::overflow_error);
  support::Writer(file_).run("update cdictidx set id=-9223372036854775807");
  EXPECT_THROW(boundsOf(u"饭"), std::overflow_error);
  support::Writer(file_).run("update cdictidx set id=21474830");
  EXPECT_EQ(boundsOf(u"饭"), (Bounds{2'147'482'800, 2'147'483'000}));
}

TEST_F(ChineseBoundsTest, FailWithoutAnIndex) {
  support::makeDatabase(file_, "create table t (a)");
  control_.setConnectionString(support::connectionStringFor(file_));
  EXPECT_ANY_THROW(boundsOf(u"发"));
}

TEST(HeadwordLookup, GivesNoSqlForOtherClasses) {
  DataControl control;
  HeadwordLookup lookup(kWords, kWindow);
  EXPECT_EQ(lookup.makeStrSql(u"X", u"bit", control), u"");
  EXPECT_EQ(lookup.bounds(), (Bounds{100, 300}));
  EXPECT_EQ(lookup.findword(u"X", u"a", control), u"");
  EXPECT_EQ(lookup.bounds(), (Bounds{100, 300})) << "only an English meaning finds its bounds";
  EXPECT_EQ(lookup.findword(u"", u"a", control), u"");
  HeadwordLookup popup(kWords, kPopup);
  EXPECT_EQ(popup.findword(u"X", u"bit", control), u"");
  EXPECT_EQ(popup.bounds(), (Bounds{100, 300}));
}

}  // namespace
