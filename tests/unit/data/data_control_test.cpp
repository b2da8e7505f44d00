#include "data/data_control.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstdint>
#include <filesystem>
#include <fstream>

#include "data/database.h"
#include "data/error.h"
#include "tests/support/data/sample_database.h"

namespace {

using data::DataControl;
using data::Error;
using data::parseConnectionString;
using support::connectionStringFor;
using support::TempFolder;

constexpr const char* kSchema =
    "create table t (word text collate lexilo); insert into t values ('a'),('b')";

TEST(DataControl, RunsItsRecordSource) {
  const TempFolder folder;
  support::makeDatabase(folder.file(u"kk.dat"), kSchema);
  DataControl control;
  EXPECT_TRUE(control.recordset().empty());
  control.setConnectionString(connectionStringFor(folder.file(u"kk.dat")));
  control.setRecordSource(u"select word from t");
  EXPECT_EQ(control.recordSource(), u"select word from t");
  EXPECT_TRUE(control.recordset().empty()) << "nothing was run yet";
  control.refresh();
  EXPECT_EQ(control.recordset().recordCount(), 2U);
  control.setRecordSource(u"select word from t where word='b'");
  EXPECT_EQ(control.recordset().recordCount(), 2U) << "nothing was run yet";
  control.refresh();
  EXPECT_EQ(control.recordset().field(u"word").text, u"b");
}

TEST(DataControl, LosesItsRowsByAFailure) {
  const TempFolder folder;
  support::makeDatabase(folder.file(u"kk.dat"), kSchema);
  DataControl control = support::opened(folder.file(u"kk.dat"), u"select word from t");
  control.setRecordSource(u"select word from nowhere");
  EXPECT_THROW(control.refresh(), Error);
  EXPECT_TRUE(control.recordset().empty());
  control.setRecordSource(u"select word from t");
  control.refresh();
  EXPECT_EQ(control.recordset().recordCount(), 2U);
}

TEST(DataControl, FailsWithoutAFileAndFindsItLater) {
  const TempFolder folder;
  DataControl control;
  control.setRecordSource(u"select word from t");
  EXPECT_THROW(control.refresh(), Error) << "no connection string";
  control.setConnectionString(connectionStringFor(folder.file(u"kk.dat")));
  EXPECT_THROW(control.refresh(), Error);
  EXPECT_EQ(support::entryCount(folder.path()), 0);
  support::makeDatabase(folder.file(u"kk.dat"), kSchema);
  control.refresh();
  EXPECT_EQ(control.recordset().recordCount(), 2U);
}

TEST(DataControl, KeepsItsRowsForTheSameConnectionString) {
  const TempFolder folder;
  support::makeDatabase(folder.file(u"kk.dat"), kSchema);
  DataControl control = support::opened(folder.file(u"kk.dat"), u"select word from t");
  control.setConnectionString(connectionStringFor(folder.file(u"kk.dat")));
  EXPECT_EQ(control.recordset().recordCount(), 2U);
  support::makeDatabase(folder.file(u"other.dat"),
                        "create table t (word text); insert into t values ('x')");
  control.setConnectionString(connectionStringFor(folder.file(u"other.dat")));
  EXPECT_TRUE(control.recordset().empty());
  control.refresh();
  EXPECT_EQ(control.recordset().field(u"word").text, u"x");
}

TEST(DataControl, KeepsItsRowsWhenItIsMoved) {
  const TempFolder folder;
  support::makeDatabase(folder.file(u"kk.dat"), kSchema);
  DataControl control = support::opened(folder.file(u"kk.dat"), u"select * from t");
  const DataControl moved = std::move(control);
  DataControl back;
  back = support::opened(folder.file(u"kk.dat"), u"select * from t");
  back.recordset().moveLast();
  EXPECT_EQ(back.recordset().field(u"word").text, u"b");
  EXPECT_EQ(moved.recordSource(), u"select * from t");
}

/// What the engine takes more, in KiB, once a table of some 8 MB has been read from end to end.
std::int64_t memoryForAScan(DataControl& control, const std::filesystem::path& file) {
  const std::int64_t before = sqlite3_memory_used();
  control.setConnectionString(connectionStringFor(file));
  control.setRecordSource(u"select a from t where a like '%nowhere%'");
  control.refresh();
  EXPECT_TRUE(control.recordset().empty());
  return (sqlite3_memory_used() - before) / 1024;
}

TEST(DataControl, KeepsFewPagesInMemoryUnlessAskedForMore) {
  const TempFolder folder;
  const std::filesystem::path file = folder.file(u"kk.dat");
  support::makeDatabase(file,
                        "create table t (a text);"
                        "with recursive n(i) as (select 1 union all select i+1 from n where i<8000)"
                        "insert into t select printf('%1000d', i) from n");
  DataControl few;
  EXPECT_LT(memoryForAScan(few, file), 1024);
  DataControl many;
  many.setCacheKiB(data::kSearchCacheKiB);
  const std::int64_t all = memoryForAScan(many, file);
  EXPECT_GT(all, 8000);
  EXPECT_LT(all, data::kSearchCacheKiB);
}

TEST(DataControl, GivesBackRowsAndMemoryWhenClosedAndOpensAgain) {
  const TempFolder folder;
  support::makeDatabase(folder.file(u"kk.dat"), kSchema);
  const std::int64_t before = sqlite3_memory_used();
  DataControl control = support::opened(folder.file(u"kk.dat"), u"select word from t");
  EXPECT_GT(sqlite3_memory_used(), before);
  control.close();
  EXPECT_TRUE(control.recordset().empty());
  EXPECT_EQ(sqlite3_memory_used(), before);
  control.refresh();
  EXPECT_EQ(control.recordset().recordCount(), 2U);
}

TEST(DataControl, FindsAFileLaterAlsoWhenItIsToKeepPages) {
  const TempFolder folder;
  const std::filesystem::path file = folder.file(u"kk.dat");
  std::ofstream(file) << "no database";
  DataControl control;
  control.setCacheKiB(data::kSearchCacheKiB);
  control.setConnectionString(connectionStringFor(file));
  control.setRecordSource(u"select word from t");
  EXPECT_THROW(control.refresh(), Error);
  std::filesystem::remove(file);
  support::makeDatabase(file, kSchema);
  control.refresh();
  EXPECT_EQ(control.recordset().recordCount(), 2U);
  control.setRecordSource(u"pragma cache_size");
  EXPECT_THROW(control.refresh(), Error) << "texts of the windows may only select";
}

std::u16string dataSourceOf(std::u16string_view file) {
  return parseConnectionString(data::connectionString(file)).dataSource;
}

TEST(ConnectionString, NamesTheDatabaseFile) {
  EXPECT_EQ(data::connectionString(u"C:\\Program Files\\kk.dat"),
            u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Program Files\\kk.dat;"
            u"Persist Security Info=False");
}

TEST(ConnectionString, GivesItsThreeValues) {
  const data::ConnectionString parsed = parseConnectionString(
      u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\Lexilo\\kk.dat;"
      u"Persist Security Info=False");
  EXPECT_EQ(parsed.provider, u"Microsoft.Jet.OLEDB.4.0");
  EXPECT_EQ(parsed.dataSource, u"C:\\Lexilo\\kk.dat");
  EXPECT_EQ(parsed.persistSecurityInfo, u"False");
}

TEST(ConnectionString, KeepsFolderNamesWithItsOwnPunctuation) {
  for (const std::u16string file :
       {u"C:\\a;b\\kk.dat", u"C:\\a=b\\kk.dat", u"C:\\a;b=c\\kk.dat", u"C:\\it's \"x\"\\kk.dat",
        u"C:\\;;\\kk.dat", u"C:\\词典；\\kk.dat", u"C:\\provider\\kk.dat",
        u"C:\\x;Provider=y\\kk.dat", u"C:\\x;Data Source=y\\kk.dat", u"C:\\x;data source\\kk.dat",
        u"C:\\x; data  source =y\\kk.dat", u"/home/x;=/kk.dat"}) {
    EXPECT_EQ(dataSourceOf(file), file);
  }
}

TEST(ConnectionString, TakesKeysInAnyCaseAndOrder) {
  const data::ConnectionString parsed =
      parseConnectionString(u"PERSIST security INFO=True; data SOURCE = x;y.dat ;provider=P");
  EXPECT_EQ(parsed.provider, u"P");
  EXPECT_EQ(parsed.dataSource, u"x;y.dat");
  EXPECT_EQ(parsed.persistSecurityInfo, u"True");
}

TEST(ConnectionString, LeavesOutWhatIsNotThere) {
  EXPECT_EQ(parseConnectionString(u"").dataSource, u"");
  EXPECT_EQ(parseConnectionString(u"kk.dat").dataSource, u"");
  EXPECT_EQ(parseConnectionString(u"Provider=P").dataSource, u"");
  EXPECT_EQ(parseConnectionString(u"Data Source=").dataSource, u"");
  EXPECT_EQ(parseConnectionString(u"Data Source=;Provider=P").dataSource, u"");
  EXPECT_EQ(parseConnectionString(u"Data Source=a.dat").dataSource, u"a.dat");
  EXPECT_EQ(parseConnectionString(u";Data Source=a.dat;").dataSource, u"a.dat;");
  EXPECT_EQ(parseConnectionString(u"nonsense;Data Source=a.dat").dataSource, u"a.dat");
}

}  // namespace
