#include "data/index_words.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "data/error.h"
#include "data/headword_lookup.h"
#include "tests/support/data/sample_database.h"

namespace {

using data::IndexWords;
using data::readIndexWords;
using support::TempFolder;

/// The index list from a table filled by `inserts`.
IndexWords wordsFrom(const std::string& inserts) {
  const TempFolder folder;
  support::makeDatabase(folder.file(u"kk.dat"),
                        "create table edictidx (word text collate lexilo);" + inserts);
  data::DataControl control;
  control.setConnectionString(support::connectionStringFor(folder.file(u"kk.dat")));
  return readIndexWords(control);
}

std::string manyWords(int count) {
  return "with recursive n(i) as (select 1 union all select i+1 from n where i<" +
         std::to_string(count) + ") insert into edictidx select 'w'||i from n";
}

TEST(IndexWords, StandInLowerCaseAndInOrder) {
  EXPECT_EQ(wordsFrom("insert into edictidx values ('Éclair'),('data'),('AIDS'),('Bit-Map')"),
            (IndexWords{u"", u"aids", u"bit-map", u"data", u"éclair"}));
}

TEST(IndexWords, EachSlotHoldsItsWord) {
  IndexWords words{u"", u"ab", u"", u"c"};
  words.push_back(u"def");
  ASSERT_EQ(words.size(), 5U);
  EXPECT_EQ(words[0], u"");
  EXPECT_EQ(words[1], u"ab");
  EXPECT_EQ(words[2], u"");
  EXPECT_EQ(words[3], u"c");
  EXPECT_EQ(words[4], u"def");
  EXPECT_NE(words, (IndexWords{u"", u"a", u"b", u"c", u"def"})) << "the same letters";
  words.clear();
  EXPECT_TRUE(words.empty());
  words.push_back(u"x");
  EXPECT_EQ(words[0], u"x");
}

TEST(IndexWords, HaveOnlySlotZeroForAnEmptyTable) { EXPECT_EQ(wordsFrom(""), IndexWords{u""}); }

TEST(IndexWords, AreCountedWithSixteenBits) {
  EXPECT_EQ(wordsFrom(manyWords(32'767)).size(), 32'768U);
  EXPECT_THROW(wordsFrom(manyWords(32'768)), std::overflow_error);
}

TEST(IndexWords, NeedTheirTable) {
  const TempFolder folder;
  support::makeDatabase(folder.file(u"kk.dat"), "create table t (a)");
  data::DataControl control;
  control.setConnectionString(support::connectionStringFor(folder.file(u"kk.dat")));
  EXPECT_THROW(readIndexWords(control), data::Error);
}

}  // namespace
