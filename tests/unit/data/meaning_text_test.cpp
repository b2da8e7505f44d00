#include "data/meaning_text.h"

#include <gtest/gtest.h>

#include "tests/unit/support/sample_database.h"

namespace {

using data::meaningLines;
using data::MeaningText;

TEST(MeaningText, PutsOneMeaningOnALine) {
  const MeaningText text = meaningLines(u"bit", {u"位", u"比特"});
  EXPECT_EQ(text.body, u" bit\r\n 位；\r\n 比特");
  EXPECT_EQ(text.headLength, 6U);
}

TEST(MeaningText, HasNoSemicolonBehindTheOnlyMeaning) {
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
