#include "data/dialect/like_range.h"

#include <gtest/gtest.h>

#include <random>

#include "data/record_set.h"
#include "tests/support/data/sample_database.h"

namespace {

using data::likeRange;

TEST(LikeRange, SpansTheTextsWithTheFixedBeginning) {
  EXPECT_EQ(likeRange("word", "'ab%'"),
            " and word>='ab' collate lexilo and word<'ac' collate lexilo");
  EXPECT_EQ(likeRange("word", "'AB'"),
            " and word>='AB' collate lexilo and word<'Ac' collate lexilo");
  EXPECT_EQ(likeRange("[w]", "'z_'"), " and [w]>='z' collate lexilo and [w]<'{' collate lexilo");
  EXPECT_EQ(likeRange("w", "'R&%'"), " and w>='R&' collate lexilo and w<'R''' collate lexilo");
  EXPECT_EQ(likeRange("w", "'caf\u00E9%'"),
            " and w>='caf' collate lexilo and w<'cag' collate lexilo");
}

TEST(LikeRange, HasNoLowerBoundWhereANumberMayBegin) {
  EXPECT_EQ(likeRange("w", "'5-h%'"), " and w<'5-iz' collate lexilo");
  EXPECT_EQ(likeRange("w", "'9%'"), " and w<':z' collate lexilo");
  EXPECT_EQ(likeRange("w", "'-a%'"), " and w<'-bz' collate lexilo");
  EXPECT_EQ(likeRange("w", "'+%'"), " and w<',z' collate lexilo");
  EXPECT_EQ(likeRange("w", "'.5%'"), " and w<'.6z' collate lexilo");
  EXPECT_EQ(likeRange("w", "' a%'"), " and w<' bz' collate lexilo");
  EXPECT_EQ(likeRange("w", "'(5%'"), " and w>='(5' collate lexilo and w<'(6' collate lexilo");
  EXPECT_EQ(likeRange("w", "'''a%'"), " and w>='''a' collate lexilo and w<'''b' collate lexilo");
}

TEST(LikeRange, IsNotThereWithoutAFixedBeginning) {
  for (const char* pattern : {"''", "'%'", "'_a'", "'%a%'", "'热%'", "'\u00E9%'"}) {
    EXPECT_EQ(likeRange("word", pattern), "") << pattern;
  }
}

/// Short texts over few characters, so that many of them begin alike.
std::string randomText(std::mt19937& random) {
  static const std::vector<std::string> kCharacters{
      "a", "A", "b", "z", "Z", "{", "@", " ", "~", "-", "1", "\u00E9", "\u00C9", "热", "做", "''"};
  std::string text;
  for (std::size_t i = random() % 5; i > 0; --i) text += kCharacters[random() % kCharacters.size()];
  return text;
}

/// The rows of `table` that are like `pattern`; the range is kept out by a `sign` before the
/// column.
std::vector<std::u16string> found(const std::shared_ptr<data::Database>& database,
                                  std::string_view table, std::string_view sign,
                                  std::string_view pattern) {
  std::string sql = "select id from ";
  sql.append(table).append(" where ").append(sign).append("word like ").append(pattern);
  data::RecordSet rows(database, sql + " order by id");
  return support::column(rows, u"id");
}

TEST(LikeRange, NeverChangesWhatASearchFinds) {
  std::mt19937 random(20'24);
  const support::TempFolder folder;
  const auto file = folder.file(u"kk.dat");
  support::makeDatabase(file,
                        "create table plain (word text collate lexilo, id integer);"
                        "create table clustered (word text collate lexilo, id integer,"
                        " primary key (word, id)) without rowid;"
                        "create table other (word text, id integer);"
                        "create index i on other (word);"
                        "create table numbers (word integer, id integer);"
                        "create index n on numbers (word)");
  support::Writer writer(file);
  writer.run("begin");
  for (int id = 0; id < 600; ++id) {
    const std::string values = "('" + randomText(random) + "'," + std::to_string(id) + ")";
    for (const char* table : {"plain", "clustered", "other", "numbers"}) {
      writer.run("insert into " + std::string(table) + " values " + values);
    }
    const std::string number = std::to_string(static_cast<int>(random() % 4000) - 1000);
    writer.run("insert into numbers values (" + number + (id % 3 == 0 ? ".5," : ",") +
               std::to_string(600 + id) + ")");
  }
  writer.run("commit");
  const auto database = std::make_shared<data::Database>(support::utf8Path(file));
  for (int i = 0; i < 300; ++i) {
    const std::string pattern =
        "'" + std::string(1, "aAbzZ{1-0 @~23."[i % 15]) + randomText(random) + "%'";
    ASSERT_NE(likeRange("word", pattern), "");
    for (const char* table : {"plain", "clustered", "other", "numbers"}) {
      EXPECT_EQ(found(database, table, "", pattern), found(database, table, "+", pattern))
          << table << ": " << pattern;
    }
  }
}

}  // namespace
