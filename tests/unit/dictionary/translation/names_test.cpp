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

// "balfe | [人名] [爱尔兰姓氏] 巴尔夫盖尔语人名的英语形式，…", "binchy | [人名] [爱尔兰姓氏]
// 宾奇可能与Binks有关", "gourlay | [人名] [苏格兰人姓氏] 古尔利含义是不详", "bagge | [人名]
// [英格兰人姓氏] 巴格职业名称，制袋人", "ifor | [男子名] 艾弗 Ivor的威尔士语变体"
TEST(LeadingName, KnowsEveryBeginningOfAnExplanation) {
  for (const std::u16string_view explanation :
       {u"来源于古英语",    u"取自父名",     u"绰号",       u"住所名称", u"地貌名称", u"职业名称",
        u"盖尔语人名",      u"威尔士语变体", u"的变体",     u"的昵称",   u"的异体",   u"的英语形式",
        u"英语化",          u"涵义是",       u"含义是不详", u"源自",     u"爱尔兰语", u"同1",
        u"可能与Binks有关", u"爱称",         u"缩写形式",   u"新娘"}) {
    EXPECT_EQ(dictionary::leadingName(u"巴格" + std::u16string(explanation)), u"巴格")
        << std::string(explanation.begin(), explanation.end());
  }
}

// "abell | 艾贝尔（英格兰人姓氏）", "abun | n. (Abun)人名；(日)蛙文(姓)", "abril | …
// 阿布丽尔（女名）", "Bonaventura | …(意)博纳文图拉(男子教名)"
TEST(NamedByNote, KnowsEveryNoteOnAPerson) {
  for (const std::u16string_view note :
       {u"人名", u"英格兰人姓氏", u"姓", u"男子名", u"女子名", u"男名", u"女名", u"男子教名"}) {
    EXPECT_EQ(dictionary::namedByNote(u"甲(" + std::u16string(note) + u')'),
              setOf(Subject::kPerson))
        << std::string(note.begin(), note.end());
  }
}

// "Borodin | （人名）鲍罗丁", "Oceanside | … 欧申赛德（Oceanside地名）", "Lindisfarne |
// 林迪斯法恩（Lindisfarne, 地名）", "dorling | （英国一地名）道灵"
TEST(NamedByNote, NeedsAShortNoteBehindTheName) {
  EXPECT_EQ(dictionary::namedByNote(u"（人名）鲍罗丁"), 0U);
  EXPECT_EQ(dictionary::namedByNote(u"（英国一地名）道灵"), 0U);
  EXPECT_EQ(dictionary::namedByNote(u"欧申赛德（Oceanside地名）"), setOf(Subject::kPlace));
  EXPECT_EQ(dictionary::namedByNote(u"甲(0123456789地名)"), setOf(Subject::kPlace));
  EXPECT_EQ(dictionary::namedByNote(u"林迪斯法恩（Lindisfarne, 地名）"), 0U);
  EXPECT_EQ(dictionary::namedByNote(u"甲(01234567890地名)"), 0U);
}

}  // namespace
