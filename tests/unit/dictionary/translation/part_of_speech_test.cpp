#include "dictionary/translation/part_of_speech.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

/// The text after its marks.
std::u16string rest(const std::u16string& text) {
  return text.substr(dictionary::partOfSpeechLength(text));
}

TEST(PartOfSpeechLength, IncludesTheBlanksAfterTheMark) {
  EXPECT_EQ(rest(u"n. 数据"), u"数据");
  EXPECT_EQ(rest(u"n.数据"), u"数据");
  EXPECT_EQ(rest(u"abbr. 数据"), u"数据");
  EXPECT_EQ(rest(u"adj．温暖的"), u"温暖的");
}

TEST(PartOfSpeechLength, CoversLinkedMarks) {
  EXPECT_EQ(rest(u"n. & adj. 等剂量"), u"等剂量");
  EXPECT_EQ(rest(u"vt.vi. 加速"), u"加速");
  EXPECT_EQ(rest(u"n.&vt. 加速"), u"加速");
  EXPECT_EQ(rest(u"vt., vi. 加速"), u"加速");
  EXPECT_EQ(rest(u"n.、v. 加速"), u"加速");
  EXPECT_EQ(rest(u"n.，v. 加速"), u"加速");
  EXPECT_EQ(rest(u"a. & 加速"), u"加速");
}

TEST(PartOfSpeechLength, CoversLinkedMarksWithOneStop) {
  EXPECT_EQ(rest(u"vt,vi.& n.<口>大口吞咽"), u"<口>大口吞咽");
  EXPECT_EQ(rest(u"n,n. 甲"), u"甲");
  EXPECT_EQ(rest(u"v/n.甲"), u"甲");
}

TEST(PartOfSpeechLength, KnowsMarksOfTwoWords) {
  EXPECT_EQ(rest(u"comb.form 表示“大气”"), u"表示“大气”");
  EXPECT_EQ(rest(u"comb. form 【化学】表示"), u"【化学】表示");
  EXPECT_EQ(rest(u"comb. 构词成分"), u"构词成分");
  EXPECT_EQ(rest(u"comb. formal 甲"), u"formal 甲");
  EXPECT_EQ(rest(u"link-v. 忘记"), u"忘记");
}

TEST(BeginsFurtherSense, NeedsABareMarkBeforeChinese) {
  using dictionary::beginsFurtherSense;
  for (const std::u16string text : {u"v.使渗透", u"ll n.得洛斯人", u"ll n.( 航空器的)脱离轨道"}) {
    EXPECT_TRUE(beginsFurtherSense(text)) << text.size();
  }
  for (const std::u16string text :
       {u"adj.的2.", u"int.色墨水", u"n. ", u"n.", u"n", u"", u"ll ", u"ll 甲", u"x.甲", u"v.1"}) {
    EXPECT_FALSE(beginsFurtherSense(text)) << text.size();
  }
}

TEST(PartOfSpeechLength, AcceptsAMissingStopBeforeChinese) {
  EXPECT_EQ(rest(u"n 数据"), u"数据");
  EXPECT_EQ(rest(u"v …成"), u"…成");
  EXPECT_EQ(rest(u"n<古>.乡下人"), u"<古>.乡下人");
  EXPECT_EQ(rest(u"a[生化].叶绿素的"), u"[生化].叶绿素的");
}

TEST(PartOfSpeechLength, IsZeroForOtherWords) {
  for (const std::u16string text : {u"数据", u"N. 数据", u"Dr. 数据", u"no. 数据", u"a级",
                                    u"n型半导体", u"v", u"n.", u"a b", u"n,n甲", u"a,乙", u""}) {
    if (text == u"n.") {
      EXPECT_EQ(rest(text), u"");
    } else {
      EXPECT_EQ(rest(text), text);
    }
  }
}

TEST(PartsOfSpeechIn, KnowsEveryMark) {
  using dictionary::PartOfSpeech;
  const std::vector<std::pair<PartOfSpeech, std::vector<std::u16string>>> marks = {
      {PartOfSpeech::kNoun, {u"n", u"un", u"pl", u"pn"}},
      {PartOfSpeech::kVerb, {u"v", u"vt", u"vi", u"vbl", u"pp", u"ing"}},
      {PartOfSpeech::kAdjective, {u"a", u"adj"}},
      {PartOfSpeech::kAdverb, {u"adv", u"ad"}},
      {PartOfSpeech::kFunction,
       {u"prep", u"pron", u"num", u"conj", u"art", u"quant", u"int", u"interj", u"exclam"}}};
  for (const auto& [part, names] : marks) {
    for (const std::u16string& name : names) {
      EXPECT_EQ(dictionary::partsOfSpeechIn(name + u". "), setOf(part))
          << std::string(name.begin(), name.end());
    }
  }
}

}  // namespace
