#include "data/text_functions.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <string>

#include "data/database.h"
#include "data/error.h"
#include "tests/support/data/sample_database.h"

namespace {

/// Whether two long texts that differ in their last character are equal in the text order.
bool longTextsAreEqual(sqlite3* connection) {
  const std::string text = "replace(hex(zeroblob(200000)),'0','a')";
  const std::string sql = "select " + text + "||'b' = " + text + "||'c' collate lexilo";
  sqlite3_stmt* statement = nullptr;
  EXPECT_EQ(sqlite3_prepare_v2(connection, sql.c_str(), -1, &statement, nullptr), SQLITE_OK);
  EXPECT_EQ(sqlite3_step(statement), SQLITE_ROW);
  const bool equal = sqlite3_column_int(statement, 0) == 1;
  sqlite3_finalize(statement);
  return equal;
}

TEST(TextFunctions, AComparisonIsGivenUpOnceTheQueryIsOverdue) {
  bool overdue = false;
  sqlite3* connection = nullptr;
  ASSERT_EQ(sqlite3_open(":memory:", &connection), SQLITE_OK);
  data::registerTextFunctions(connection, [&] { return overdue; });
  EXPECT_FALSE(longTextsAreEqual(connection));
  overdue = true;
  EXPECT_TRUE(longTextsAreEqual(connection)) << "compared to the end";
  overdue = false;
  EXPECT_FALSE(longTextsAreEqual(connection)) << "the next statement compares again";
  sqlite3_close_v2(connection);
}

TEST(TextFunctions, AQueryThatBecameOverdueUnnoticedReturnsNoRows) {
  const support::TempFolder folder;
  const auto file = folder.file(u"kk.dat");
  support::makeDatabase(file,
                        "create table med (word text collate lexilo);"
                        "insert into med values ('heart'),('liver')");
  using std::chrono::milliseconds;
  data::Database prompt(support::utf8Path(file), {.query = milliseconds(3500)});
  EXPECT_EQ(prompt.read("select word from med order by word", 10).cells.size(), 2U);
  // Too short for the engine to be interrupted on the way.
  data::Database overdue(support::utf8Path(file), {.query = milliseconds(-1)});
  try {
    static_cast<void>(overdue.read("select word from med order by word", 10));
    FAIL() << "rows whose order may be wrong";
  } catch (const data::Error& error) {
    EXPECT_EQ(error.code(), SQLITE_INTERRUPT);
  }
}

}  // namespace
