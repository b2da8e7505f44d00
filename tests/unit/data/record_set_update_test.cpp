#include <gtest/gtest.h>
#include <sqlite3.h>

#include <chrono>
#include <memory>

#include "data/database.h"
#include "data/error.h"
#include "data/record_set.h"
#include "tests/support/data/sample_database.h"
#include "tests/support/data/unprivileged.h"

namespace {

using data::Error;
using data::RecordSet;
using support::TempFolder;

class RecordSetUpdateTest : public testing::Test {
 protected:
  RecordSetUpdateTest() {
    support::makeDatabase(
        file_,
        "create table [Index] (id integer primary key, TableName text, Cname text collate lexilo,"
        " Isshow integer, [default] integer);"
        "insert into [Index] values (10,'chem','化学',1,0),(20,'med','医学',1,1),"
        "(30,'comp','计算机',0,0);"
        "create table unnumbered (a integer, b integer, primary key (a)) without rowid;"
        "insert into unnumbered values (1,1);"
        "create table twins (a integer, b integer);"
        "insert into twins values (1,1),(1,1)");
    open(std::chrono::milliseconds(1000));
  }

  void open(std::chrono::milliseconds lock) {
    database_ = std::make_shared<data::Database>(
        support::utf8Path(file_), data::Timeouts{std::chrono::milliseconds(5000), lock});
  }

  RecordSet rows(std::string_view sql) { return RecordSet(database_, sql); }

  std::int64_t stored(const std::string& sql) { return support::Writer(file_).number(sql); }

  TempFolder folder_;
  std::filesystem::path file_ = folder_.file(u"kk.dat");
  std::shared_ptr<data::Database> database_;
};

constexpr std::string_view kSettingsQuery = "select * from [index] order by Cname";

TEST_F(RecordSetUpdateTest, WritesTheCurrentRowAndShowsIt) {
  RecordSet set = rows(kSettingsQuery);
  EXPECT_EQ(set.field(u"cname").text, u"化学");
  set.moveNext();
  EXPECT_EQ(set.field(u"cname").text, u"计算机");
  set.update(u"Default", 1);
  EXPECT_EQ(set.field(u"default").integer, 1);
  EXPECT_EQ(set.field(4).text, u"1");
  EXPECT_EQ(stored("select group_concat([default],'') from [Index]"), 11);
  EXPECT_EQ(stored("select [default] from [Index] where id=30"), 1);
  set.moveFirst();
  EXPECT_EQ(set.field(u"default").integer, 0);
  set.moveLast();
  EXPECT_EQ(set.field(u"default").integer, 1);
  set.update(u"default", 0);
  EXPECT_EQ(stored("select [default] from [Index] where id=20"), 0);
  EXPECT_EQ(rows(kSettingsQuery).recordCount(), 3U);
}

TEST_F(RecordSetUpdateTest, WritesTheSameValueAgain) {
  RecordSet set = rows(kSettingsQuery);
  set.moveLast();
  const std::string before = support::readFile(file_).substr(4096);
  set.update(u"default", 1);
  EXPECT_EQ(support::readFile(file_).substr(4096), before);
}

TEST_F(RecordSetUpdateTest, ChangesExactlyOneOfEqualRows) {
  RecordSet set = rows("select * from twins");
  set.moveNext();
  set.update(u"b", 7);
  EXPECT_EQ(stored("select b from twins where rowid=1"), 1);
  EXPECT_EQ(stored("select b from twins where rowid=2"), 7);
}

TEST_F(RecordSetUpdateTest, WritesTheLastRowOfAScan) {
  RecordSet set = rows("select * from twins where a=1");
  set.moveLast();
  set.update(u"b", 8);
  EXPECT_EQ(set.field(u"b").integer, 8);
  EXPECT_EQ(stored("select b from twins where rowid=2"), 8);
  set.moveFirst();
  EXPECT_EQ(set.field(u"b").integer, 1);
}

TEST_F(RecordSetUpdateTest, LeavesNoOtherFileBehind) {
  RecordSet set = rows(kSettingsQuery);
  set.update(u"default", 1);
  EXPECT_EQ(support::entryCount(folder_.path()), 1);
}

TEST_F(RecordSetUpdateTest, IsNotHinderedByOurOwnReading) {
  RecordSet scan = rows("select * from twins");
  auto other = std::make_shared<data::Database>(support::utf8Path(file_));
  RecordSet elsewhere(other, "select * from [Index]");
  RecordSet set = rows(kSettingsQuery);
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 3; ++i) {
    set.update(u"default", i);
    scan.moveFirst();
    elsewhere.moveFirst();
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(1000));
  elsewhere.moveNext();
  EXPECT_EQ(elsewhere.field(u"default").integer, 1);
}

TEST_F(RecordSetUpdateTest, RefusesRowsThatItCannotFind) {
  for (const char* sql : {"select Cname,[default] from [Index]", "select top 5 * from [Index]",
                          "select a.* from [Index] a,twins b", "select * from unnumbered"}) {
    RecordSet set = rows(sql);
    EXPECT_THROW(set.update(set.field(0).text == u"1" ? u"b" : u"default", 5), Error) << sql;
  }
  RecordSet set = rows(kSettingsQuery);
  EXPECT_THROW(set.update(u"nothing", 1), Error);
  EXPECT_THROW(set.update(u"rowid", 1), Error);
  set.moveLast();
  set.moveNext();
  EXPECT_THROW(set.update(u"default", 1), Error);
  EXPECT_EQ(stored("select sum([default]) from [Index]"), 1);
  EXPECT_EQ(stored("select b from unnumbered"), 1);
}

TEST_F(RecordSetUpdateTest, FailsForARowThatIsGone) {
  RecordSet set = rows(kSettingsQuery);
  support::Writer(file_).run("delete from [Index] where id=10");
  EXPECT_THROW(set.update(u"default", 1), Error);
  EXPECT_EQ(set.field(u"default").integer, 0);
}

TEST_F(RecordSetUpdateTest, WaitsForOthersOnlySoLong) {
  open(std::chrono::milliseconds(60));
  RecordSet set = rows(kSettingsQuery);
  support::Writer other(file_);
  other.run("begin immediate");
  const auto start = std::chrono::steady_clock::now();
  try {
    set.update(u"default", 1);
    ADD_FAILURE() << "no error";
  } catch (const Error& error) {
    EXPECT_EQ(error.code() & 0xFF, SQLITE_BUSY);
    EXPECT_STREQ(error.engineText(), "database is locked");
    EXPECT_EQ(error.what(),
              data::failureText(support::utf8Path(file_), data::Access::kWrite, error));
  }
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(50));
  EXPECT_EQ(set.field(u"default").integer, 0);
  other.run("commit");
  set.update(u"default", 1);
  EXPECT_EQ(set.field(u"default").integer, 1);
}

TEST_F(RecordSetUpdateTest, FailsWithNothingChangedWhileAnotherReads) {
  open(std::chrono::milliseconds(60));
  RecordSet set = rows(kSettingsQuery);
  support::Writer other(file_);
  other.run("begin");
  EXPECT_EQ(other.number("select count(*) from twins"), 2);
  EXPECT_THROW(set.update(u"default", 1), Error);
  EXPECT_EQ(set.field(u"default").integer, 0);
  other.run("commit");
  EXPECT_EQ(stored("select sum([default]) from [Index]"), 1);
  set.update(u"default", 1);
  EXPECT_EQ(stored("select sum([default]) from [Index]"), 2);
}

TEST_F(RecordSetUpdateTest, FailsWhereNoJournalCanBeWritten) {
  RecordSet set = rows(kSettingsQuery);
  std::filesystem::create_directory(folder_.file(u"kk.dat-journal"));
  EXPECT_THROW(set.update(u"default", 1), Error);
  EXPECT_EQ(set.field(u"default").integer, 0);
  std::filesystem::remove(folder_.file(u"kk.dat-journal"));
  EXPECT_EQ(stored("select sum([default]) from [Index]"), 1);
}

#ifndef _WIN32
// Under Wine root may write into a file that is read-only; here there is a user whom it binds.
TEST_F(RecordSetUpdateTest, FailsForAReadOnlyFile) {
  using std::filesystem::perms;
  const std::string before = support::readFile(file_);
  // Anybody may write into the folder: it is the file alone that forbids it.
  std::filesystem::permissions(folder_.path(), perms::all);
  std::filesystem::permissions(file_, perms::owner_read | perms::group_read | perms::others_read);
  const bool passed = support::passesUnprivileged([this] {
    RecordSet set = rows(kSettingsQuery);
    try {
      set.update(u"default", 1);
      ADD_FAILURE() << "no error";
    } catch (const Error& error) {
      EXPECT_EQ(error.code() & 0xFF, SQLITE_READONLY);
    }
    EXPECT_EQ(set.field(u"default").integer, 0);
  });
  std::filesystem::permissions(file_, perms::owner_all);
  EXPECT_TRUE(passed);
  EXPECT_TRUE(support::readFile(file_) == before);
}
#endif

TEST_F(RecordSetUpdateTest, FailsForAFileThatIsGone) {
  RecordSet set = rows(kSettingsQuery);
  database_.reset();
  RecordSet kept = std::move(set);
  std::error_code error;
  std::filesystem::rename(file_, folder_.file(u"moved.dat"), error);
  if (!error) {
    EXPECT_THROW(kept.update(u"default", 1), Error);
    EXPECT_FALSE(std::filesystem::exists(file_));
  } else {
    EXPECT_NO_THROW(kept.update(u"default", 1)) << "an open file cannot be moved";
  }
}

TEST_F(RecordSetUpdateTest, RunsNoTriggers) {
  support::Writer(file_).run(
      "create trigger x after update on [Index] begin delete from twins; end");
  RecordSet set = rows(kSettingsQuery);
  set.update(u"default", 1);
  EXPECT_EQ(stored("select count(*) from twins"), 2);
}

}  // namespace
