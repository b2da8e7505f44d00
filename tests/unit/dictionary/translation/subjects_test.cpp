#include "dictionary/translation/subjects.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using dictionary::Subject;

TEST(SubjectInfos, HaveTableNamesOfSmallLetters) {
  for (const dictionary::SubjectInfo& info : dictionary::kSubjectInfos) {
    EXPECT_FALSE(info.name.empty());
    for (const char letter : info.table) EXPECT_TRUE(letter >= 'a' && letter <= 'z');
  }
  EXPECT_EQ(dictionary::kSubjectInfos[0].table, "med");
  EXPECT_EQ(dictionary::kSubjectInfos[23].name, u"网络释义");
}

TEST(SubjectsOfTag, IgnoresMarksOfUsage) {
  EXPECT_EQ(dictionary::subjectsOfTag(u"医"), setOf(Subject::kMedicine));
  EXPECT_EQ(dictionary::subjectsOfTag(u"生化"), setOf(Subject::kChemistry));
  EXPECT_EQ(dictionary::subjectsOfTag(u"网络"), setOf(Subject::kWeb));
  for (const std::u16string_view tag :
       {u"美", u"英", u"口", u"俚", u"古", u"拉", u"复", u"诗", u"", u" "}) {
    EXPECT_EQ(dictionary::subjectsOfTag(tag), 0U);
  }
}

// "medio | n. 中部；[美俚]五分镍币；[经贸]月中付款"
TEST(SubjectsOfTag, KnowsTheSpellingsOfATag) {
  for (const std::u16string_view tag : {u"经", u"商", u"贸易", u"经贸", u"会计", u"证券"}) {
    EXPECT_EQ(dictionary::subjectsOfTag(tag), setOf(Subject::kEconomy)) << tag.size();
  }
}

}  // namespace
