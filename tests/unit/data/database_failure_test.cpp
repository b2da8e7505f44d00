#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <array>

#include "data/database.h"
#include "data/error.h"
#include "tests/support/data/file_layer.h"
#include "tests/support/data/plain_read.h"
#include "tests/support/data/sample_database.h"

namespace {

using data::Database;
using data::Error;
using support::TempFolder;

constexpr std::size_t kMany = 100'000;

/// The engine's code for the failure to open `file` and read table t; SQLITE_OK without one.
int failureOf(const std::filesystem::path& file) {
  try {
    Database database(support::utf8Path(file));
    database.read("select * from t order by a", kMany);
  } catch (const Error& error) {
    EXPECT_STRNE(error.engineText(), "");
    EXPECT_EQ(error.what(), data::failureText(support::utf8Path(file), data::Access::kRead, error));
    return error.code();
  }
  return SQLITE_OK;
}

int primary(int code) { return code & 0xFF; }

void makeTable(const std::filesystem::path& file) {
  std::string sql = "create table t (a text collate lexilo, n integer)";
  for (int i = 0; i < 2000; ++i) {
    sql += ";insert into t values ('word " + std::to_string(i) + "'," + std::to_string(i) + ")";
  }
  support::makeDatabase(file, sql + ";create index i on t (a)");
}

TEST(DatabaseFailure, MissingFileIsNotCreated) {
  const TempFolder folder;
  EXPECT_EQ(primary(failureOf(folder.file(u"kk.dat"))), SQLITE_CANTOPEN);
  EXPECT_EQ(primary(failureOf(folder.file(u"missing") / "kk.dat")), SQLITE_CANTOPEN);
  EXPECT_EQ(support::entryCount(folder.path()), 0);
}

TEST(DatabaseFailure, FolderIsNoDatabase) {
  const TempFolder folder;
  EXPECT_NE(failureOf(folder.path()), SQLITE_OK);
  EXPECT_EQ(support::entryCount(folder.path()), 0);
}

TEST(DatabaseFailure, NamesWithAMeaningForTheEngineAreNone) {
  EXPECT_EQ(failureOf(""), SQLITE_CANTOPEN);
  EXPECT_EQ(failureOf(":memory:"), SQLITE_CANTOPEN);
  EXPECT_EQ(primary(failureOf("file::memory:?mode=memory")), SQLITE_CANTOPEN);
}

TEST(DatabaseFailure, EmptyFileHasNoTables) {
  const TempFolder folder;
  const auto file = folder.file(u"kk.dat");
  support::writeFile(file, "");
  try {
    Database(support::utf8Path(file)).read("select * from t", kMany);
    ADD_FAILURE() << "no error";
  } catch (const Error& error) {
    EXPECT_STREQ(error.engineText(), "no such table: t");
    EXPECT_EQ(error.what(), "词典文件不完整：\n" + support::utf8Path(file) +
                                "\n请重新解压或重新安装 Lexilo，恢复这个文件，然后重新启动程序。"
                                "\n\nno such table: t");
  }
  EXPECT_EQ(std::filesystem::file_size(file), 0U);
}

TEST(DatabaseFailure, OtherFilesAreNoDatabase) {
  const TempFolder folder;
  const auto file = folder.file(u"kk.dat");
  for (const std::size_t size : {2U, 99U, 100U, 511U, 512U, 4096U, 100'000U}) {
    support::writeFile(file, std::string(size, 'x'));
    EXPECT_EQ(failureOf(file), SQLITE_NOTADB) << size;
  }
}

TEST(DatabaseFailure, TruncatedFileFails) {
  const TempFolder folder;
  const auto whole = folder.file(u"whole.dat");
  makeTable(whole);
  const std::string bytes = support::readFile(whole);
  ASSERT_GE(bytes.size(), 20U * 4096);
  const auto file = folder.file(u"kk.dat");
  for (const std::size_t size :
       {std::size_t{1}, std::size_t{50}, std::size_t{100}, std::size_t{2000}, std::size_t{4095},
        std::size_t{4096}, std::size_t{4097}, std::size_t{8192}, bytes.size() / 2,
        bytes.size() - 4096}) {
    support::writeFile(file, std::string_view(bytes).substr(0, size));
    EXPECT_NE(failureOf(file), SQLITE_OK) << size;
  }
  EXPECT_EQ(failureOf(whole), SQLITE_OK);
}

TEST(DatabaseFailure, DamagedPagesFailOrYieldRows) {
  const TempFolder folder;
  const auto file = folder.file(u"kk.dat");
  makeTable(file);
  const std::string bytes = support::readFile(file);
  int failures = 0;
  for (std::size_t place = 0; place < 10; ++place) {
    for (const char damage : {'\0', '\x05', '\x7F', '\xFF'}) {
      std::string damaged = bytes;
      // The head of a page, where its kind and the places of its rows stand.
      const std::size_t page = place * (bytes.size() / 4096 - 1) / 9;
      const std::size_t start = (page * 4096) + (page == 0 ? 100 : 0);
      std::fill_n(damaged.begin() + static_cast<std::ptrdiff_t>(start), 40, damage);
      support::writeFile(file, damaged);
      const int code = primary(failureOf(file));
      EXPECT_TRUE(code == SQLITE_OK || code == SQLITE_CORRUPT || code == SQLITE_NOTADB ||
                  code == SQLITE_TOOBIG || code == SQLITE_ERROR)
          << "page " << page << ": " << code;
      failures += code == SQLITE_OK ? 0 : 1;
      EXPECT_EQ(support::readFile(file), damaged);
    }
  }
  EXPECT_GE(failures, 10);
}

TEST(DatabaseFailure, DamageInTheFirstBytesIsNoticed) {
  const TempFolder folder;
  const auto file = folder.file(u"kk.dat");
  makeTable(file);
  const std::string bytes = support::readFile(file);
  for (const std::size_t place : {0U, 15U, 16U, 19U, 20U, 21U, 22U, 23U, 47U}) {
    std::string damaged = bytes;
    damaged[place] = '\x77';
    support::writeFile(file, damaged);
    EXPECT_NE(failureOf(file), SQLITE_OK) << place;
  }
}

TEST(DatabaseFailure, ViewsAreRefused) {
  const TempFolder folder;
  const auto file = folder.file(u"kk.dat");
  support::makeDatabase(file,
                        "create table t (a text, n integer);"
                        "insert into t values ('x',1);"
                        "create view v as select a from t");
  Database database(support::utf8Path(file));
  EXPECT_THROW(database.read("select * from v", kMany), Error);
  EXPECT_EQ(database.read("select * from t", kMany).count(), 1U);
}

TEST(DatabaseFailure, LockedFileFailsAfterAWait) {
  const TempFolder folder;
  const auto file = folder.file(u"kk.dat");
  makeTable(file);
  using std::chrono::milliseconds;
  Database database(support::utf8Path(file),
                    {.query = milliseconds(5000), .lock = milliseconds(60)});
  support::Writer writer(file);
  writer.run("begin exclusive");
  const auto start = std::chrono::steady_clock::now();
  try {
    database.read("select * from t", kMany);
    ADD_FAILURE() << "no error";
  } catch (const Error& error) {
    EXPECT_EQ(primary(error.code()), SQLITE_BUSY);
  }
  EXPECT_GE(std::chrono::steady_clock::now() - start, milliseconds(50));
  writer.run("commit");
  EXPECT_EQ(database.read("select * from t", kMany).count(), 2000U);
}

/// A database in `folder`/kk.dat as a program leaves it that is killed while it changes table t.
std::filesystem::path makeInterruptedUpdate(const TempFolder& folder) {
  const auto whole = folder.file(u"whole.dat");
  makeTable(whole);
  support::Writer writer(whole);
  writer.run("pragma cache_size=2; begin; update t set n=n+100000, a='changed '||a");
  std::filesystem::create_directory(folder.file(u"left"));
  auto file = folder.file(u"left") / "kk.dat";
  support::writeFile(file, support::readFile(whole));
  auto journal = file;
  journal += "-journal";
  auto wholeJournal = whole;
  wholeJournal += "-journal";
  support::writeFile(journal, support::readFile(wholeJournal));
  writer.run("rollback");
  EXPECT_GT(std::filesystem::file_size(journal), 4096U);
  EXPECT_NE(support::readFile(file), support::readFile(whole)) << "nothing was written yet";
  return file;
}

TEST(DatabaseFailure, InterruptedUpdateIsRolledBack) {
  const TempFolder folder;
  const auto file = makeInterruptedUpdate(folder);
  EXPECT_EQ(support::plainRead(file), SQLITE_READONLY_ROLLBACK);
  Database database(support::utf8Path(file));
  const data::Rows rows = database.read("select a,n from t order by n", kMany);
  ASSERT_EQ(rows.count(), 2000U);
  EXPECT_EQ(rows.cells[0].text, "word 0");
  EXPECT_EQ(rows.cells[3999].integer, 1999);
  EXPECT_EQ(support::entryCount(file.parent_path()), 1) << "the journal is still there";
  EXPECT_EQ(support::plainRead(file), SQLITE_OK);
}

TEST(DatabaseFailure, InterruptedUpdateIsRolledBackUnderAnOpenDatabase) {
  const TempFolder folder;
  const auto file = makeInterruptedUpdate(folder);
  auto journal = file;
  journal += "-journal";
  const std::string leftFile = support::readFile(file);
  const std::string leftJournal = support::readFile(journal);
  Database database(support::utf8Path(file));
  EXPECT_TRUE(database.hasRowid("t"));
  EXPECT_EQ(database.read("select * from t", kMany).count(), 2000U);
  // Another program is killed now, while this connection knows the schema already.
  support::writeFile(file, leftFile);
  support::writeFile(journal, leftJournal);
  const data::Rows rows = database.read("select a,n from t order by n", kMany);
  ASSERT_EQ(rows.count(), 2000U);
  EXPECT_EQ(rows.cells[3999].integer, 1999);
  EXPECT_FALSE(std::filesystem::exists(journal));
}

TEST(DatabaseFailure, AnUpdateThatCannotBeRolledBackIsTold) {
  const TempFolder folder;
  const auto file = makeInterruptedUpdate(folder);
  const support::FileLayer full([] { return SQLITE_FULL; });
  EXPECT_EQ(primary(failureOf(file)), SQLITE_FULL);
}

TEST(DatabaseFailure, ReadingOpensTheFileForReadingOnly) {
  const TempFolder folder;
  const auto file = folder.file(u"kk.dat");
  makeTable(file);
  const data::Connection connection = data::openConnection(
      support::utf8Path(file), data::Access::kRead, std::chrono::milliseconds(10));
  EXPECT_EQ(sqlite3_db_readonly(connection.get(), "main"), 1);
}

}  // namespace
