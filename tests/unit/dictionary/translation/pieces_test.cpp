#include "dictionary/translation/pieces.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using dictionary::Colons;
using Texts = std::vector<std::u16string>;

Texts split(std::u16string_view text, Colons colons = Colons::kExplain) {
  Texts texts;
  for (const dictionary::RawPiece& piece : dictionary::splitPieces(text, colons)) {
    texts.emplace_back(piece.text);
  }
  return texts;
}

TEST(SplitPieces, SplitsAtNarrowAndWideSeparators) {
  EXPECT_EQ(split(u"甲, 乙;丙；丁，戊、己!庚！"),
            (Texts{u"甲", u"乙", u"丙", u"丁", u"戊", u"己", u"庚"}));
  EXPECT_EQ(split(u" , ;甲,, "), (Texts{u"甲"}));
  EXPECT_EQ(split(u""), Texts());
}

// "eh | interj. 啊!嗯!是吗?好吗?", "would you...? | 你能不能...?...可以吗?", ssx
TEST(SplitPieces, SplitsBetweenQuestions) {
  EXPECT_EQ(split(u"啊!嗯!是吗?好吗?"), (Texts{u"啊", u"嗯", u"是吗", u"好吗?"}));
  EXPECT_EQ(split(u"你能不能...?...可以吗?"), (Texts{u"你能不能...", u"...可以吗?"}));
  EXPECT_EQ(split(u"何人得益？ 为何目的？；[俚语]惩罚"),
            (Texts{u"何人得益", u"为何目的？", u"[俚语]惩罚"}));
  EXPECT_EQ(split(u"磺胺异？唑, 鼠？[产于北美]"), (Texts{u"磺胺异？唑", u"鼠？[产于北美]"}));
}

TEST(SplitPieces, ReturnsTheSeparatorBeforeEachPiece) {
  const std::u16string text = u"甲,乙；丙、丁!戊吗?己";
  std::u16string separators;
  for (const dictionary::RawPiece& piece : dictionary::splitPieces(text, Colons::kExplain)) {
    separators += piece.separator == 0 ? u'0' : piece.separator;
  }
  EXPECT_EQ(separators, u"0，；、！？");
}

// "presumable | [法] 可假定的:可推测的, 可推定的:可能的"
TEST(SplitPieces, TakesColonsForCommasOnDemand) {
  EXPECT_EQ(split(u"可假定的:可推测的, 可推定的:可能的", Colons::kAreCommas),
            (Texts{u"可假定的", u"可推测的", u"可推定的", u"可能的"}));
  EXPECT_EQ(split(u"可假定的:可推测的, 可推定的:可能的"),
            (Texts{u"可假定的:可推测的", u"可推定的:可能的"}));
  EXPECT_EQ(split(u"拉丁语：事实, 1:3, 乙:B, 甲:", Colons::kAreCommas),
            (Texts{u"拉丁语：事实", u"1:3", u"乙:B", u"甲:"}));
}

TEST(SplitPieces, DoesNotSplitInsideBracketsAndQuotes) {
  EXPECT_EQ(split(u"覆盖(马,鹰等)头罩；“又矮,又胖”的人, [甲、乙]丙"),
            (Texts{u"覆盖(马,鹰等)头罩", u"“又矮,又胖”的人", u"[甲、乙]丙"}));
  EXPECT_EQ(split(u"甲（乙,丙)丁,戊"), (Texts{u"甲（乙,丙)丁", u"戊"}));
  EXPECT_EQ(split(u"甲(乙(丙,丁)戊,己)庚,辛"), (Texts{u"甲(乙(丙,丁)戊,己)庚", u"辛"}));
}

TEST(SplitPieces, IgnoresABracketThatDoesNotClose) {
  EXPECT_EQ(split(u"甲(乙,丙"), (Texts{u"甲(乙", u"丙"}));
  EXPECT_EQ(split(u"甲“乙,丙"), (Texts{u"甲“乙", u"丙"}));
}

// "wot | vbl.wit的第1、3人称单数现在式", "areed | be的第一、二、三人称复数和第二人称单数, …"
TEST(SplitPieces, KeepsNumeralsTogether) {
  EXPECT_EQ(split(u"wit的第1、3人称单数"), (Texts{u"wit的第1、3人称单数"}));
  EXPECT_EQ(split(u"be的第一、二、三人称复数, 甲"), (Texts{u"be的第一、二、三人称复数", u"甲"}));
  EXPECT_EQ(split(u"第一、第二"), (Texts{u"第一", u"第二"}));
  EXPECT_EQ(split(u"一、二"), (Texts{u"一", u"二"}));
}

TEST(SplitPieces, KeepsCommasInsideChemicalNames) {
  EXPECT_EQ(split(u"2,4-二氯苯, 1,2-二溴乙烷"), (Texts{u"2,4-二氯苯", u"1,2-二溴乙烷"}));
  EXPECT_EQ(split(u"N,N-二甲基; 4',5-甲"), (Texts{u"N,N-二甲基", u"4',5-甲"}));
  EXPECT_EQ(split(u"1, 4-二氮杂苯"), (Texts{u"1, 4-二氮杂苯"}));
  EXPECT_EQ(split(u"烯丙基甲醇; Δ, 3-丁烯醇"), (Texts{u"烯丙基甲醇", u"Δ, 3-丁烯醇"}));
  EXPECT_EQ(split(u"5α, 22α-螺甾烷"), (Texts{u"5α, 22α-螺甾烷"}));
  EXPECT_EQ(split(u"维生素A, B"), (Texts{u"维生素A", u"B"}));
}

TEST(SplitPieces, SplitsBeforeAPartOfSpeechMark) {
  EXPECT_EQ(split(u"ambiance,n.周围, 气氛"), (Texts{u"ambiance", u"n.周围", u"气氛"}));
  EXPECT_EQ(split(u"渗透现象v.使渗透"), (Texts{u"渗透现象", u"v.使渗透"}));
  EXPECT_EQ(split(u"脱离轨道 ll n.( 航空器等的)脱离轨道"),
            (Texts{u"脱离轨道", u"ll n.( 航空器等的)脱离轨道"}));
  EXPECT_EQ(split(u"维生素n.1, 在farther的adj.的(甲v.乙)"),
            (Texts{u"维生素n.1", u"在farther的adj.的(甲v.乙)"}));
}

TEST(SplitPieces, TakesLinearTime) {
  const std::u16string hostile(30000, u'(');
  EXPECT_EQ(split(hostile).size(), 1U);
}

TEST(InflectionNote, IsReadFromALine) {
  EXPECT_EQ(dictionary::inflectionNote(u"(blood-stain 的复数) [医] 血迹"), u"blood-stain的复数");
  EXPECT_EQ(dictionary::inflectionNote(u"v. 划定( circumscribe的现在分词 ); 限定"),
            u"circumscribe的现在分词");
  EXPECT_EQ(dictionary::inflectionNote(u"n. 数据（data的复数）"), u"data的复数");
  EXPECT_EQ(dictionary::inflectionNote(u"(o'er 的第三人称 -s形式)"), u"o′er的第三人称-s形式");
  EXPECT_EQ(dictionary::inflectionNote(u"(apple%的复数) n. 苹果"), u"");
  EXPECT_EQ(dictionary::inflectionNote(u"n. 数据(计算机用)"), u"");
  EXPECT_EQ(dictionary::inflectionNote(u"名词的复数, (名词的复数)"), u"");
}

// "perpetuates | v. 使永存（ perpetuate的第三人称 ）; 使持续", "abinger | (abing 的比较级) AB血型",
// "ablest | a. 能够…的( able的最高级 )", "-fisted | v. 拳打（fist的过去式）"
TEST(InflectionNote, KnowsEveryForm) {
  for (const std::u16string form : {u"x的复数", u"x的过去式", u"x的过去分词", u"x的现在分词",
                                    u"x的第三人称", u"x的比较级", u"x的最高级"}) {
    EXPECT_EQ(dictionary::inflectionNote(u"甲( " + form + u" )"), form) << form.size();
  }
}

TEST(InflectionNote, HasAtMostFortyEightCharacters) {
  const std::u16string longest = std::u16string(45, u'x') + u"的复数";
  EXPECT_EQ(dictionary::inflectionNote(u'(' + longest + u')'), longest);
  EXPECT_EQ(dictionary::inflectionNote(u"(x" + longest + u')'), u"");
}

}  // namespace
