// Heads of lines, and what a subject dictionary shows of a line.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dictionary/translation/line.h"

namespace {

using dictionary::parseLine;
using dictionary::Subject;
using dictionary::subjectText;

std::u16string text(std::u16string_view line, Subject subject) {
  return subjectText(parseLine(line), subject);
}

TEST(ReadHead, ReadsMarksTagsAndNotes) {
  const dictionary::LineHead head =
      dictionary::readHead(u"(data 的复数) n. [计] 数据", true, false);
  EXPECT_EQ(head.subjects, setOf(Subject::kComputing));
  EXPECT_EQ(head.notes, u"(data 的复数)");
  EXPECT_FALSE(head.abbreviation);
  EXPECT_TRUE(dictionary::readHead(u"abbr. [计] 甲", true, false).abbreviation);
}

TEST(ReadHead, ReadsSeveralTags) {
  EXPECT_EQ(dictionary::readHead(u"n. [数][天] 横坐标", true, false).subjects,
            setOf(Subject::kMathematics) | setOf(Subject::kPhysics));
  EXPECT_EQ(dictionary::readHead(u"[计][修]逐块", true, false).subjects,
            setOf(Subject::kComputing));
  EXPECT_EQ(dictionary::readHead(u"【动物学】甲", true, false).subjects, setOf(Subject::kZoology));
  EXPECT_EQ(dictionary::readHead(u"〔植〕甲", true, false).subjects, setOf(Subject::kBotany));
}

TEST(SubjectText, PutsWebLinesIntoTheirOwnDictionary) {
  EXPECT_EQ(text(u"[网络] 胡德；兜帽", Subject::kWeb), u"胡德；兜帽");
}

TEST(SubjectText, LeavesOutLostCharacters) {
  EXPECT_EQ(text(u"[化] 酸┏; 变性蛋白", Subject::kChemistry), u"变性蛋白");
  EXPECT_EQ(text(u"[化] 甲(C\uE00917)乙", Subject::kChemistry), u"甲乙");
  EXPECT_EQ(text(u"[化] 酸┏", Subject::kChemistry), u"");
  EXPECT_EQ(text(u"[化] ABC", Subject::kChemistry), u"");
}

// "cymene | [医] 对异丙基甲苯, ?花烃", "cui bono | <拉>何人得益？为何目的？"
TEST(SubjectText, LeavesOutAQuestionMarkForALostCharacter) {
  EXPECT_EQ(text(u"[医] 对异丙基甲苯, ?花烃", Subject::kMedicine), u"对异丙基甲苯");
  EXPECT_EQ(text(u"[法] 何人得益？为何目的？", Subject::kLaw), u"何人得益？为何目的？");
}

// sowar, arna; aluminography, reglet, "ntc | abbr. [印]国家纺织公司"
TEST(ReadHead, TellsIndianEnglishFromPrinting) {
  EXPECT_EQ(text(u"[印]骑兵, 传令骑兵", Subject::kLightIndustry), u"");
  EXPECT_EQ(text(u"(sowar 的复数) [印]骑兵", Subject::kLightIndustry), u"");
  EXPECT_EQ(text(u"abbr. [印]国家纺织公司", Subject::kLightIndustry), u"");
  const auto soldiers = parseLine(u"[印]骑兵, 传令骑兵").pieces;
  ASSERT_EQ(soldiers.size(), 2U);
  EXPECT_EQ(soldiers[0].equivalent.word, u"骑兵");
  EXPECT_EQ(soldiers[1].equivalent.word, u"传令骑兵");
  EXPECT_EQ(text(u"n. [印]铝版术", Subject::kLightIndustry), u"铝版术");
  EXPECT_EQ(text(u"n. 平条, 扁条, [印] (排版用)木嵌条", Subject::kLightIndustry),
            u"(排版用)木嵌条");
}

// "Broome | n. 布鲁姆（地名））"
TEST(SubjectText, HasNoBracketTooMany) {
  EXPECT_EQ(text(u"n. 布鲁姆（地名））", Subject::kPlace), u"布鲁姆（地名）");
  EXPECT_EQ(text(u"[医] 甲(乙)丙)", Subject::kMedicine), u"甲(乙)丙)");
}

// "polys | n. [医]多形核白细胞…( poly的复数形式 )", "ophthalmometer | n. [医]检眼计 ,( 眼 ) 屈光计"
TEST(SubjectText, HasNoBlanksInsideTheBracketsOfNotes) {
  EXPECT_EQ(text(u"n. [医]检眼计 ,( 眼 ) 屈光计", Subject::kMedicine), u"检眼计，(眼)屈光计");
  EXPECT_EQ(text(u"[医]甲( 乙)丙(丁 )", Subject::kMedicine), u"甲(乙)丙(丁)");
}

// "payara |  似鯖水狼脂鯉\\大胸水狼脂鯉"
TEST(SubjectText, HasNoBackslashes) {
  EXPECT_EQ(text(u"[鱼] 似鯖水狼脂鯉\\大胸水狼脂鯉", Subject::kZoology),
            u"似鯖水狼脂鯉大胸水狼脂鯉");
}

// "verbi gratia | (=for example)(略 v. g.). [拉]例如", "calyptra | n[植].藓帽, 冠状部"
TEST(ReadHead, SkipsTheFullStopAfterANote) {
  EXPECT_EQ(dictionary::readHead(u"(=for example)(略 v. g.). [拉]例如", true, false).notes,
            u"(=for example)(略 v. g.)[拉]");
  EXPECT_EQ(dictionary::readHead(u"n[植].[动]藓帽", true, false).subjects,
            setOf(Subject::kBotany) | setOf(Subject::kZoology));
  EXPECT_EQ(dictionary::readHead(u".[植]藓帽", true, false).subjects, 0U);
}

TEST(ReadHead, CollectsThePartsOfSpeech) {
  EXPECT_EQ(dictionary::readHead(u"n. [计] vt. 甲", true, false).parts,
            setOf(dictionary::PartOfSpeech::kNoun) | setOf(dictionary::PartOfSpeech::kVerb));
}

TEST(ReadHead, RemembersThatItReadAnAbbreviation) {
  const dictionary::LineHead head = dictionary::readHead(u"abbr. [计] n. 甲", true, false);
  EXPECT_TRUE(head.abbreviation);
  EXPECT_TRUE(head.marked);
  EXPECT_FALSE(dictionary::readHead(u"abbr. 甲", true, false).marked);
}

}  // namespace
