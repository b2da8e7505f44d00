#include "dictionary/check/general.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using dictionary::Findings;
using dictionary::GeneralTables;
using dictionary::Rule;

TEST(CheckGeneral, TellsTheLanguagesApartAtU0100) {
  GeneralTables tables;
  tables.edict = {{u"a\u00FF"}, {1}};
  tables.cdict = {{u"\u0100"}, {1}};
  Findings right;
  dictionary::checkGeneral(tables, right);
  EXPECT_EQ(right.count(Rule::kEnglishHeadwords), 0U);
  EXPECT_EQ(right.count(Rule::kChineseHeadwords), 0U);

  std::swap(tables.edict, tables.cdict);
  Findings wrong;
  dictionary::checkGeneral(tables, wrong);
  EXPECT_EQ(wrong.count(Rule::kEnglishHeadwords), 1U);
  EXPECT_EQ(wrong.count(Rule::kChineseHeadwords), 1U);
}

TEST(RowName, CountsFromOne) {
  EXPECT_EQ(dictionary::rowName("edict", 16, u"abc"), "[edict] row 17 «abc»");
}

}  // namespace
