#include "dictionary/translation/names.h"

#include <gtest/gtest.h>

namespace {

using dictionary::Subject;

TEST(LeadingName, EndsWhereAnExplanationBegins) {
  EXPECT_EQ(dictionary::leadingName(u"巴克 Barker的变体"), u"巴克");
  EXPECT_EQ(dictionary::leadingName(u"塔隆来源于日耳曼语人名"), u"塔隆");
  EXPECT_EQ(dictionary::leadingName(u"斯托纳住所名称"), u"斯托纳");
  EXPECT_EQ(dictionary::leadingName(u"埃格德"), u"埃格德");
}

// "Emmie | (英)埃米(女子教名Emma的昵称)", Kirsty, "Munroe | 芒罗（Munro的变体）（人名）"
TEST(LeadingName, IsNotCutInsideBrackets) {
  for (const std::u16string_view piece :
       {u"(英)埃米(女子教名Emma的昵称)", u"(英)柯丝蒂(教名 Christiana、Katherine 的昵称)",
        u"芒罗（Munro的变体）（人名）", u"弗兰（昵称 Fran）"}) {
    EXPECT_EQ(dictionary::leadingName(piece), piece) << piece.size();
  }
  EXPECT_EQ(dictionary::leadingName(u"(英)埃米(女名)的昵称"), u"(英)埃米(女名)");
  EXPECT_EQ(dictionary::leadingName(u"埃米(Emma的昵称"), u"埃米(Emma");
}

TEST(NamedByNote, ReturnsTheSubjectThatTheNoteNames) {
  EXPECT_EQ(dictionary::namedByNote(u"鲍曼（姓氏）"), setOf(Subject::kPerson));
  EXPECT_EQ(dictionary::namedByNote(u"约翰(男子名)"), setOf(Subject::kPerson));
  EXPECT_EQ(dictionary::namedByNote(u"阿波普卡（美国地名）"), setOf(Subject::kPlace));
  EXPECT_EQ(dictionary::namedByNote(u"（用于地名）古的"), 0U);
  EXPECT_EQ(dictionary::namedByNote(u"苹果(水果)"), 0U);
}

TEST(AnnouncedNames, ReturnsTheSubjectOfWhatFollows) {
  EXPECT_EQ(dictionary::announcedNames(u"(Luang)人名", false), setOf(Subject::kPerson));
  EXPECT_EQ(dictionary::announcedNames(u"(place-name 的复数)地名", false), 0U);
  EXPECT_EQ(dictionary::announcedNames(u"人名", true), setOf(Subject::kPerson));
  EXPECT_EQ(dictionary::announcedNames(u"姓氏", true), setOf(Subject::kPerson));
  EXPECT_EQ(dictionary::announcedNames(u"地名", true), setOf(Subject::kPlace));
  EXPECT_EQ(dictionary::announcedNames(u"地名", false), 0U);
  EXPECT_EQ(dictionary::announcedNames(u"地名(注)", false), 0U);
  EXPECT_EQ(dictionary::announcedNames(u"地名学", true), 0U);
  EXPECT_EQ(dictionary::announcedNames(u"", true), 0U);
}

}  // namespace
