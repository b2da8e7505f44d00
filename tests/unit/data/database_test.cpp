#include "data/database.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <chrono>

#include "data/error.h"
#include "tests/support/data/sample_database.h"

namespace {

using data::Database;
using data::Error;
using support::TempFolder;

constexpr std::size_t kMany = 100'000;

/// The failure of `sql` on a database made from `schema`; empty where it does not fail.
class DatabaseTest : public testing::Test {
 protected:
  DatabaseTest() {
    support::makeDatabase(file_,
                          "create table t (a text collate lexilo, n integer);"
                          "insert into t values ('Data',1),('bit',2),('数据',3),('位',4),(null,5)");
  }

  std::string failureOf(const std::string& sql) {
    Database database(support::utf8Path(file_));
    try {
      database.read(sql, kMany);
    } catch (const Error& error) {
      EXPECT_EQ(error.what(),
                error.code() == SQLITE_MISUSE
                    ? error.engineText()
                    : data::failureText(support::utf8Path(file_), data::Access::kRead, error));
      return error.engineText();
    }
    return {};
  }

  TempFolder folder_;
  std::filesystem::path file_ = folder_.file(u"kk.dat");
};

TEST_F(DatabaseTest, ReadsTextsAndNumbers) {
  Database database(support::utf8Path(file_));
  const data::Rows rows = database.read("select a as A1,n from t", kMany);
  EXPECT_EQ(rows.columns, (std::vector<std::string>{"A1", "n"}));
  EXPECT_TRUE(rows.complete);
  ASSERT_EQ(rows.count(), 5U);
  EXPECT_EQ(rows.cells[4].text, "数据");
  EXPECT_EQ(rows.cells[4].integer, 0);
  EXPECT_EQ(rows.cells[5].text, "3");
  EXPECT_EQ(rows.cells[5].integer, 3);
  EXPECT_EQ(rows.cells[8].text, "");
}

TEST_F(DatabaseTest, StopsAtTheLimit) {
  Database database(support::utf8Path(file_));
  const data::Rows rows = database.read("select n from t", 2);
  EXPECT_EQ(rows.count(), 2U);
  EXPECT_FALSE(rows.complete);
  EXPECT_EQ(database.read("select n from t", 0).count(), 0U);
}

TEST_F(DatabaseTest, ComparesInTheDictionarysOrder) {
  Database database(support::utf8Path(file_));
  const data::Rows ordered = database.read("select a from t where a is not null order by a", kMany);
  ASSERT_EQ(ordered.count(), 4U);
  EXPECT_EQ(ordered.cells[0].text, "bit");
  EXPECT_EQ(ordered.cells[1].text, "Data");
  EXPECT_EQ(ordered.cells[2].text, "数据");
  EXPECT_EQ(ordered.cells[3].text, "位");
  EXPECT_EQ(database.read("select n from t where a='DATA'", kMany).count(), 1U);
  EXPECT_EQ(database.read("select n from t where a>='d' and a<'e'", kMany).count(), 1U);
}

TEST_F(DatabaseTest, MatchesLikeWithoutCase) {
  Database database(support::utf8Path(file_));
  EXPECT_EQ(database.read("select n from t where a like 'd%A'", kMany).count(), 1U);
  EXPECT_EQ(database.read("select n from t where a like '_'", kMany).count(), 1U);
  EXPECT_EQ(database.read("select n from t where n like '1'", kMany).count(), 1U);
  EXPECT_EQ(database.read("select n from t where a like null", kMany).count(), 0U);
  EXPECT_NE(failureOf("select n from t where a like 'x' escape '\\'"), "");
  EXPECT_NE(failureOf("select n from t where a like '" + std::string(50'001, '%') + "'"), "");
  EXPECT_EQ(failureOf("select n from t where a like '" + std::string(50'000, '%') + "'"), "");
}

TEST_F(DatabaseTest, TakesThePatternOfEachRowWhereItIsNoConstant) {
  Database database(support::utf8Path(file_));
  EXPECT_EQ(database.read("select n from t where 'data' like a", kMany).count(), 1U);
  EXPECT_EQ(database.read("select n from t where '数据' like a", kMany).count(), 1U);
  EXPECT_EQ(database.read("select n from t where a like a", kMany).count(), 4U);
  const data::Rows rows = database.read(
      "select n from t where a like 'd%' or a like '%t' or '位' like a or n like '3'", kMany);
  EXPECT_EQ(rows.count(), 4U);
}

TEST_F(DatabaseTest, NamesWhatIsWrongWithAStatement) {
  EXPECT_EQ(failureOf("select * from nowhere"), "no such table: nowhere");
  EXPECT_EQ(failureOf("select b from t"), "no such column: b");
  EXPECT_EQ(failureOf("select a from t where"), "incomplete input");
  EXPECT_EQ(failureOf("select a from where"), "near \"where\": syntax error");
  EXPECT_EQ(failureOf("select 'a from t"), "unrecognized token: \"'a from t\"");
  EXPECT_NE(failureOf("select \"word\" from t"), "");
}

TEST_F(DatabaseTest, RunsExactlyOneStatement) {
  EXPECT_EQ(failureOf("select a from t; select a from t"), "SQL text with more than one statement");
  EXPECT_EQ(failureOf("select a from t;;x"), "SQL text with more than one statement");
  EXPECT_EQ(failureOf("select a from t; /* */ delete from t"),
            "SQL text with more than one statement");
  EXPECT_NE(failureOf(""), "");
  EXPECT_NE(failureOf(" -- nothing"), "");
  EXPECT_NE(failureOf(std::string("select a from t\0 where n=1", 26)), "");
  EXPECT_EQ(failureOf("select a from t; ; -- end"), "");
  EXPECT_EQ(failureOf("select a from t;/* one */ ; /* two\n; select 1"), "");
}

TEST_F(DatabaseTest, RefusesAllButReading) {
  const std::string before = support::readFile(file_);
  const std::string other = support::utf8Path(folder_.file(u"other.dat"));
  std::string quotedOther;
  for (const char c : other) quotedOther.append(c == '\'' ? 2 : 1, c);
  for (const std::string& sql :
       {std::string("insert into t values ('x',1)"),
        std::string("update t set n=1"),
        std::string("delete from t"),
        std::string("drop table t"),
        std::string("create table u(a)"),
        std::string("create temp table u(a)"),
        std::string("create index i on t(a)"),
        std::string("alter table t rename to u"),
        std::string("vacuum"),
        std::string("reindex"),
        std::string("analyze"),
        std::string("begin"),
        std::string("begin immediate"),
        std::string("savepoint s"),
        "attach '" + quotedOther + "' as x",
        "vacuum into '" + quotedOther + "'",
        std::string("detach main"),
        std::string("pragma user_version=1"),
        std::string("pragma user_version"),
        std::string("pragma table_info(t)"),
        std::string("select * from pragma_table_info('t')"),
        std::string("select * from sqlite_master"),
        std::string("select * from SQLITE_SCHEMA"),
        std::string("select * from sqlite_temp_master"),
        std::string("select * from json_each('[1]')"),
        std::string("select count(*) from t"),
        std::string("select randomblob(1000) from t"),
        std::string("select load_extension('x')"),
        std::string("select a from t where a glob 'x'"),
        std::string(
            "with recursive r(x) as (select 1 union all select x+1 from r) select x from r"),
        std::string("explain select a from t where n in (select * from sqlite_master)")}) {
    EXPECT_NE(failureOf(sql), "") << sql;
  }
  EXPECT_EQ(support::readFile(file_), before);
  EXPECT_EQ(support::entryCount(folder_.path()), 1);
}

TEST_F(DatabaseTest, EndsAQueryThatRunsTooLong) {
  support::Writer writer(file_);
  for (int i = 0; i < 9; ++i) writer.run("insert into t select a,n from t");
  using std::chrono::milliseconds;
  Database database(support::utf8Path(file_),
                    {.query = milliseconds(50), .lock = milliseconds(50)});
  const auto start = std::chrono::steady_clock::now();
  try {
    database.read("select w.a from t w,t x,t y,t z where w.n+x.n+y.n+z.n<0", kMany);
    ADD_FAILURE() << "no error";
  } catch (const Error& error) {
    EXPECT_EQ(error.code(), SQLITE_INTERRUPT);
    EXPECT_TRUE(std::string(error.what())
                    .starts_with("在词典文件中查询用时过长，已经停止：\n" +
                                 support::utf8Path(file_) + "\n"));
  }
  EXPECT_GE(std::chrono::steady_clock::now() - start, milliseconds(50));
  EXPECT_LT(std::chrono::steady_clock::now() - start, milliseconds(2000));
  EXPECT_EQ(database.read("select n from t where n=1 and a='data'", 1).count(), 1U);
}

/// The ids of all rows of `sql`, the second column, as they come in `order`.
std::vector<std::int64_t> ids(Database& database, const std::string& sql, data::ScanOrder order) {
  const data::Rows rows = database.read(sql, kMany, order);
  std::vector<std::int64_t> result;
  for (std::size_t i = 1; i < rows.cells.size(); i += 2) result.push_back(rows.cells[i].integer);
  return result;
}

TEST_F(DatabaseTest, ScansBackwardWhateverTheTableIsLike) {
  support::Writer(file_).run(
      "create table plain (word text collate lexilo, id integer);"
      "create table indexed (word text collate lexilo, id integer);"
      "create table clustered (word text collate lexilo, id integer, primary key (word, id))"
      "  without rowid;"
      "insert into plain values ('a',1),('B',2),('b',3),('c',4),('的',5),('做',6);"
      "insert into indexed select * from plain;"
      "insert into clustered select * from plain;"
      "create index i on indexed (word)");
  Database database(support::utf8Path(file_));
  for (const char* table : {"plain", "indexed", "clustered"}) {
    for (const char* condition :
         {"<='0'", "<='a'", "<='b'", "<='bb'", "<='的'", "<='坐'", "<='做做'", ">='0'", ">='a'",
          ">='b'", ">='bb'", ">='的'", ">='坐'", ">='做做'", "='b'"}) {
      std::string sql = "select * from ";
      sql.append(table).append(" where word").append(condition);
      std::vector<std::int64_t> backward = ids(database, sql, data::ScanOrder::kBackward);
      std::reverse(backward.begin(), backward.end());
      EXPECT_EQ(ids(database, sql, data::ScanOrder::kForward), backward) << sql;
    }
  }
}

TEST_F(DatabaseTest, KnowsWhichTablesNumberTheirRows) {
  support::Writer(file_).run(
      "create table clustered (a primary key) without rowid; create view v as select a from t");
  Database database(support::utf8Path(file_));
  EXPECT_TRUE(database.hasRowid("t"));
  EXPECT_TRUE(database.hasRowid("T"));
  EXPECT_FALSE(database.hasRowid("clustered"));
  EXPECT_FALSE(database.hasRowid("v"));
  EXPECT_FALSE(database.hasRowid("nowhere"));
  EXPECT_NE(failureOf("select * from v"), "");
}

}  // namespace
