#include "data/record_set.h"

#include <gtest/gtest.h>

#include <memory>

#include "data/database.h"
#include "data/error.h"
#include "tests/support/data/sample_database.h"

namespace {

using data::Error;
using data::RecordSet;
using support::column;
using support::TempFolder;
using Texts = std::vector<std::u16string>;

class RecordSetTest : public testing::Test {
 protected:
  RecordSetTest() {
    support::makeDatabase(
        file_,
        "create table med (word text collate lexilo, meaning text collate lexilo);"
        "insert into med values ('heat','热'),('fever','发热'),('cold','感冒'),('hot','热的'),"
        "('Heat stroke','中暑');"
        "create table numbers (a integer, b text);"
        "insert into numbers values (-5,'12abc'),(3000000000,'x'),(null,null)");
    support::Writer writer(file_);
    writer.run("create table long (word text collate lexilo, id integer); begin");
    for (int i = 1; i <= 10'000; ++i) {
      const std::string number = std::to_string(100'000 + i);
      writer.run("insert into long values ('w" + number + "'," + std::to_string(i) + ")");
    }
    writer.run("commit");
    database_ = std::make_shared<data::Database>(support::utf8Path(file_));
  }

  RecordSet rows(std::string_view sql) { return RecordSet(database_, sql); }

  TempFolder folder_;
  std::filesystem::path file_ = folder_.file(u"kk.dat");
  std::shared_ptr<data::Database> database_;
};

TEST_F(RecordSetTest, StandsOnTheFirstRowToBeginWith) {
  RecordSet set = rows("select word,meaning from med order by word");
  EXPECT_FALSE(set.empty());
  EXPECT_FALSE(set.endOfFile());
  EXPECT_EQ(set.field(u"word").text, u"cold");
  EXPECT_EQ(set.recordCount(), 5U);
  EXPECT_EQ(set.field(u"word").text, u"cold");
}

TEST_F(RecordSetTest, StepsFromFirstToEnd) {
  for (const char* sql : {"select * from med", "select word from med where word>='a'",
                          "select top 5 word from med", "select * from med where word>='a'"}) {
    RecordSet set = rows(sql);
    EXPECT_EQ(column(set, u"word"), (Texts{u"heat", u"fever", u"cold", u"hot", u"Heat stroke"}));
    EXPECT_TRUE(set.endOfFile());
    EXPECT_THROW(set.moveNext(), Error);
    EXPECT_THROW(set.field(0), Error);
    set.moveFirst();
    EXPECT_EQ(set.field(0).text, u"heat");
    set.moveLast();
    EXPECT_EQ(set.field(0).text, u"Heat stroke");
    set.moveNext();
    EXPECT_TRUE(set.endOfFile());
  }
}

TEST_F(RecordSetTest, HasNoRowsWhereNothingFits) {
  for (const char* sql :
       {"select * from med where word>='z'",
        "select top 5 word from med where "
        "word>='z'",
        "select top 0 word from med", "select word from med where word='z' order by word"}) {
    RecordSet set = rows(sql);
    EXPECT_TRUE(set.empty()) << sql;
    EXPECT_TRUE(set.endOfFile());
    EXPECT_EQ(set.recordCount(), 0U);
    set.moveFirst();
    set.moveLast();
    EXPECT_TRUE(set.endOfFile());
    EXPECT_THROW(set.moveNext(), Error);
    EXPECT_THROW(set.field(u"word"), Error);
  }
}

TEST_F(RecordSetTest, IsEmptyWithoutAQuery) {
  RecordSet set;
  EXPECT_TRUE(set.empty());
  EXPECT_TRUE(set.endOfFile());
  EXPECT_EQ(set.recordCount(), 0U);
  set.moveFirst();
  set.moveLast();
  set.close();
  EXPECT_THROW(set.moveNext(), Error);
  EXPECT_THROW(set.field(0), Error);
  EXPECT_THROW(set.update(u"a", 1), Error);
}

TEST_F(RecordSetTest, FindsFieldsByNameWithoutCaseAndByPosition) {
  RecordSet set = rows("select word as Word,meaning as Meaning from med order by word");
  EXPECT_EQ(set.field(u"WORD").text, u"cold");
  EXPECT_EQ(set.field(u"meaning").text, u"感冒");
  EXPECT_EQ(set.field(0).text, u"cold");
  EXPECT_EQ(set.field(1).text, u"感冒");
  EXPECT_THROW(set.field(2), Error);
  EXPECT_THROW(set.field(u"wor"), Error);
  EXPECT_THROW(set.field(u""), Error);
  RecordSet whole = rows("select * from med");
  EXPECT_EQ(whole.field(1).text, u"热");
  EXPECT_THROW(whole.field(2), Error) << "the row's number shows";
  EXPECT_THROW(whole.field(u"rowid"), Error) << "the row's number shows";
}

TEST_F(RecordSetTest, GivesNumbersAndTexts) {
  RecordSet set = rows("select a,b from numbers");
  EXPECT_EQ(set.field(0).integer, -5);
  EXPECT_EQ(set.field(0).text, u"-5");
  EXPECT_EQ(set.field(1).integer, 12);
  EXPECT_EQ(set.field(1).text, u"12abc");
  set.moveNext();
  EXPECT_EQ(set.field(0).integer, 3'000'000'000);
  EXPECT_EQ(set.field(1).integer, 0);
  set.moveNext();
  EXPECT_EQ(set.field(0).text, u"");
  EXPECT_EQ(set.field(0).integer, 0);
}

TEST_F(RecordSetTest, OrdersByTheColumnNotByItsNewName) {
  RecordSet set = rows(
      "select top 100 word as meaning,meaning as word from med where meaning like '%热%' "
      "order by meaning");
  EXPECT_EQ(column(set, u"word"), (Texts{u"发热", u"热", u"热的"}));
  EXPECT_EQ(column(set, u"meaning"), (Texts{u"fever", u"heat", u"hot"}));
}

TEST_F(RecordSetTest, StopsAtTheTopOfAQueryWhateverItsTextHolds) {
  EXPECT_EQ(rows("select top 2 word from med").recordCount(), 2U);
  EXPECT_EQ(rows("select top 2 word,meaning from med where  word like '%' /*%' and meaning like "
                 "'%x%'")
                .recordCount(),
            2U);
  EXPECT_EQ(rows("select top 2 word,meaning from med where  word like '%' --%' and meaning like "
                 "'%x%'")
                .recordCount(),
            2U);
  EXPECT_EQ(rows("select top 2 word from med where word like '%' union select word from long --")
                .recordCount(),
            2U);
  EXPECT_EQ(rows("select top 75 word from long").recordCount(), 75U);
  EXPECT_EQ(rows("select top 75 word from long where word like 'w%'").recordCount(), 75U);
}

TEST_F(RecordSetTest, GoesToTheLastRowOfMany) {
  RecordSet set = rows("select * from [long] where word<='w105000' ");
  set.moveLast();
  EXPECT_EQ(set.field(u"id").integer, 5000);
  EXPECT_FALSE(set.endOfFile());
  set.moveFirst();
  EXPECT_EQ(set.field(u"id").integer, 1);
  set.moveLast();
  EXPECT_EQ(set.recordCount(), 5000U);
  EXPECT_EQ(set.field(u"id").integer, 5000);
  set.moveNext();
  EXPECT_TRUE(set.endOfFile());
  set.moveFirst();
  set.moveNext();
  EXPECT_EQ(set.field(u"id").integer, 2);
}

TEST_F(RecordSetTest, DoesNotFetchTheRowsBeforeTheLast) {
  RecordSet set = rows("select * from [long] where word<='w105000' ");
  set.moveLast();
  // What is changed now can only show if it was not fetched yet.
  support::Writer(file_).run("update long set id=-2 where id=2");
  EXPECT_EQ(set.field(u"id").integer, 5000);
  set.moveFirst();
  set.moveNext();
  EXPECT_EQ(set.field(u"id").integer, -2);
}

TEST_F(RecordSetTest, KeepsWhatWasFetchedWhenItIsClosed) {
  RecordSet set = rows("select * from long");
  set.close();
  EXPECT_EQ(set.recordCount(), 1U);
  EXPECT_EQ(set.field(u"id").integer, 1);
  RecordSet whole = rows("select word from med");
  whole.close();
  EXPECT_EQ(whole.recordCount(), 5U);
}

TEST_F(RecordSetTest, HoldsNothingBetweenOperations) {
  RecordSet first = rows("select * from long");
  RecordSet last = rows("select * from long");
  last.moveLast();
  RecordSet top = rows("select top 3 word from long");
  RecordSet joined = rows("select a.word from med a,long b");
  support::Writer writer(file_);
  writer.run("begin exclusive; update long set id=id+1; commit");
  EXPECT_EQ(first.field(u"id").integer, 1);
  first.moveNext();
  EXPECT_EQ(first.field(u"id").integer, 3);
}

TEST_F(RecordSetTest, SurvivesRowsThatVanishBetweenItsFetches) {
  RecordSet set = rows("select * from long");
  support::Writer(file_).run("delete from long");
  set.moveNext();
  EXPECT_TRUE(set.endOfFile());
  EXPECT_TRUE(set.empty());
  EXPECT_THROW(set.field(0), Error);
}

TEST_F(RecordSetTest, CountsAnewWhereRowsVanishBetweenItsFetches) {
  RecordSet set = rows("select * from long");
  support::Writer(file_).run("delete from long");
  EXPECT_EQ(set.recordCount(), 0U);
  EXPECT_TRUE(set.endOfFile());
  EXPECT_THROW(set.field(0), Error);
}

TEST_F(RecordSetTest, ReportsErrorsWhenTheQueryIsRun) {
  EXPECT_THROW(rows("select top 5 word from nowhere"), Error);
  EXPECT_THROW(rows("select top 200 word,meaning from  where  word like '%a%'"), Error);
  EXPECT_THROW(rows("select top 200 word from med where  word like '%it's%' and meaning like "
                    "'%x%'"),
               Error);
  EXPECT_THROW(rows("select top 5 word from med; delete from med"), Error);
  EXPECT_THROW(rows("delete from med"), Error);
  EXPECT_THROW(rows(""), Error);
}

}  // namespace
