#include "dictionary/gloss/references.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using dictionary::findReference;
using dictionary::GlossReference;
using dictionary::ReferenceKind;
using dictionary::withoutChinese;

/// Kind of the reference; kNone if there is none.
ReferenceKind kind(std::u16string_view gloss) {
  return findReference(gloss).value_or(GlossReference()).kind;
}

// "金安 | see 金安區|金安区[Jin1 an1 Qu1]", "一袭", "帹 | variant of 抬[tai2]", "㬎 | old variant
// of 顯"
TEST(FindReference, ReadsBothFormsAndPinyin) {
  const GlossReference both = findReference(u"see 金安區|金安区[Jin1 an1 Qu1]").value();
  EXPECT_EQ(both.traditional, u"金安區");
  EXPECT_EQ(both.simplified, u"金安区");
  EXPECT_EQ(both.pinyin, u"Jin1 an1 Qu1");
  EXPECT_FALSE(both.usage);
  const GlossReference one = findReference(u"old variant of 抬[tai2]").value();
  EXPECT_EQ(one.traditional, u"抬");
  EXPECT_EQ(one.simplified, u"抬");
  EXPECT_TRUE(one.usage);
  EXPECT_EQ(findReference(u"same as 天干").value().pinyin, u"");
  EXPECT_EQ(findReference(u"see AA制[AA zhi4]").value().simplified, u"AA制");
}

// "徕 | used in 招徠|招徕[zhao1 lai2]", "精装 | opposite: 簡裝|简装[jian3 zhuang1]",
// "唔好睇 | Mandarin equivalent: 不好看[bu4 hao3 kan4]", "掱 | variant of 扒[pa2] in 扒手[pa2
// shou3]"
TEST(FindReference, KnowsWhatItIsFor) {
  EXPECT_EQ(kind(u"see 一[yi1]"), ReferenceKind::kSame);
  EXPECT_EQ(kind(u"see also 一[yi1]"), ReferenceKind::kRelated);
  EXPECT_EQ(kind(u"also written 一[yi1]"), ReferenceKind::kRelated);
  EXPECT_EQ(kind(u"erhua variant of 一[yi1]"), ReferenceKind::kSame);
  EXPECT_EQ(kind(u"nonstandard simplified variant of 一"), ReferenceKind::kSame);
  EXPECT_EQ(kind(u"abbr. for 一[yi1]"), ReferenceKind::kSame);
  EXPECT_EQ(kind(u"Mandarin equivalent: 不好看[bu4 hao3 kan4]"), ReferenceKind::kSame);
  EXPECT_EQ(kind(u"humorous way of writing 屌爆[diao3 bao4]"), ReferenceKind::kSame);
  EXPECT_EQ(kind(u"short form of idiom 衡情酌理"), ReferenceKind::kSame);
  EXPECT_EQ(kind(u"also transliterated 尼桑[Ni2 sang1]"), ReferenceKind::kRelated);
  EXPECT_EQ(kind(u"cf idiom 磨杵成針|磨杵成针"), ReferenceKind::kNone);
  EXPECT_EQ(kind(u"used in 招徠|招徕[zhao1 lai2]"), ReferenceKind::kPart);
  EXPECT_EQ(kind(u"variant of 扒[pa2] in 扒手[pa2 shou3]"), ReferenceKind::kPart);
  const auto opposite = findReference(u"opposite: 簡裝|简装[jian3 zhuang1]");
  ASSERT_TRUE(opposite);
  EXPECT_EQ(opposite->kind, ReferenceKind::kNone);
}

// "掱 | variant of 扒[pa2] in 扒手[pa2 shou3]"
TEST(FindReference, TakesTheWordInWhichAVariantIsUsed) {
  const GlossReference part = findReference(u"variant of 扒[pa2] in 扒手[pa2 shou3]").value();
  EXPECT_EQ(part.simplified, u"扒手");
  EXPECT_EQ(part.pinyin, u"pa2 shou3");
  EXPECT_EQ(findReference(u"variant of 扒[pa2] in old texts").value().simplified, u"扒");
}

// "芦鳗 | variant of 鱸鰻|鲈鳗[lu2 man2], giant mottled eel (…)", "螥 | Japanese variant of 蒼|苍
// house-fly", "若望 | less common variant of 約翰|约翰[Yue1 han4] preferred by the Catholic
// Church", "扶馀 | variant of 扶餘|扶余 Korean: Buyeo …", "谜 | see 謎兒|谜儿[mei4 r5], riddle"
TEST(FindReference, GivesTheMeaningOfAVariant) {
  const auto meaning = [](std::u16string_view gloss) {
    return findReference(gloss).value_or(GlossReference()).meaning;
  };
  EXPECT_EQ(meaning(u"variant of 鱸鰻|鲈鳗[lu2 man2], giant mottled eel"), u"giant mottled eel");
  EXPECT_EQ(meaning(u"Japanese variant of 蒼|苍 house-fly"), u"house-fly");
  EXPECT_EQ(meaning(u"common erroneous form of 朱鎔基|朱镕基, Zhu Rongji"), u"Zhu Rongji");
  EXPECT_EQ(meaning(u"less common variant of 約翰|约翰[Yue1 han4] preferred by the Church"), u"");
  EXPECT_EQ(meaning(u"variant of 扶餘|扶余 Korean: Buyeo"), u"");
  EXPECT_EQ(meaning(u"variant of 懈[xie4] and 邂[xie4]"), u"");
  EXPECT_EQ(meaning(u"see 謎兒|谜儿[mei4 r5], riddle"), u"");
  EXPECT_EQ(meaning(u"variant of 一[yi1]"), u"");
}

// "三C | see 3C[san1 C]"
TEST(FindReference, ReadsAWordOfLettersAndDigits) {
  const GlossReference latin = findReference(u"see 3C[san1 C]").value();
  EXPECT_EQ(latin.kind, ReferenceKind::kSame);
  EXPECT_EQ(latin.simplified, u"3C");
  EXPECT_EQ(latin.pinyin, u"san1 C");
  EXPECT_FALSE(findReference(u"see the light [x]"));
  EXPECT_FALSE(findReference(u"see []"));
}

// "太公望 | see Jiang Ziya 姜子牙[Jiang1 Zi3 ya2]"
TEST(FindReference, ReadsTheEnglishNameBeforeTheWord) {
  EXPECT_EQ(kind(u"see Jiang Ziya 姜子牙[Jiang1 Zi3 ya2]"), ReferenceKind::kSame);
  EXPECT_FALSE(findReference(u"see the master 姜子牙[Jiang1 Zi3 ya2]"));
}

// "定边县 | Dingbian County in Yulin 榆林[Yu2 lin2], Shaanxi"
TEST(FindReference, LeavesSentencesAlone) {
  EXPECT_FALSE(findReference(u"Dingbian County in Yulin 榆林[Yu2 lin2], Shaanxi"));
  EXPECT_FALSE(findReference(u"to see"));
  EXPECT_FALSE(findReference(u"what people of that time used to say when they see 一"));
  EXPECT_FALSE(findReference(u""));
}

// "艘 | Taiwan pr. [sao1]", "经历 | CL:段[duan4],次[ci4]", "奥林匹克 | abbr. to 奧運"
TEST(IsAside, KnowsWhatIsNoMeaning) {
  EXPECT_TRUE(dictionary::isAside(u"Taiwan pr. [sao1]"));
  EXPECT_TRUE(dictionary::isAside(u"also pr. [bo2]"));
  EXPECT_TRUE(dictionary::isAside(u"CL:個|个[ge4]"));
  EXPECT_TRUE(dictionary::isAside(u"abbr. to 奧運|奥运[Ao4 yun4]"));
  EXPECT_FALSE(dictionary::isAside(u"to pronounce"));
}

// "宿州 …", "糖瓜 | malt sugar candy, a traditional offering to the kitchen god Zaoshen 灶神"
TEST(WithoutChinese, RemovesWordsBesideTheirEnglish) {
  EXPECT_EQ(withoutChinese(u"Dingbian County in Yulin 榆林[Yu2 lin2], Shaanxi"),
            u"Dingbian County in Yulin, Shaanxi");
  EXPECT_EQ(withoutChinese(u"the kitchen god Zaoshen 灶神"), u"the kitchen god Zaoshen");
  EXPECT_EQ(withoutChinese(u"feral dog"), u"feral dog");
  EXPECT_EQ(withoutChinese(u"sweet 甜, sour 酸, bitter 苦"), u"sweet, sour, bitter");
  EXPECT_EQ(withoutChinese(u"from Taiwanese [bah]"), u"from Taiwanese");
}

// "周扒皮 | Zhou the exploiter, archetypal character in short story 半夜雞叫", "雄猫 | male cat,
// usually 公貓", "花大姐 | common word for ladybug, more formally 瓢蟲", "应卯 | to answer the roll
// call at 卯時, i.e. between 5 and 7 am", "土鳖 | (coll.) entrepreneur who, unlike a 海歸, has
// never studied overseas"
TEST(WithoutChinese, KeepsWhatStandsBeforeTheLastComma) {
  EXPECT_EQ(withoutChinese(u"Zhou the exploiter, character in short story 半夜雞叫"),
            u"Zhou the exploiter");
  EXPECT_EQ(withoutChinese(u"male cat, usually 公貓"), u"male cat");
  EXPECT_EQ(withoutChinese(u"common word for ladybug, more formally 瓢蟲"),
            u"common word for ladybug");
  EXPECT_FALSE(withoutChinese(u"to answer the roll call at 卯時, i.e. between 5 and 7 am"));
  EXPECT_FALSE(withoutChinese(u"to rectify 氣|气[qi4]"));
  EXPECT_FALSE(withoutChinese(u"entrepreneur who, unlike a 海歸, has never studied overseas"));
}

// "廴 | \"long stride\" radical in … occurring in 建, 延", "勃海 | renamed 渤海 after the Han"
TEST(WithoutChinese, RefusesTextsThatNeedTheWord) {
  EXPECT_FALSE(withoutChinese(u"occurring in 建, 延"));
  EXPECT_FALSE(withoutChinese(u"mustache shaped like character 八"));
  EXPECT_FALSE(withoutChinese(u"renamed 渤海 after the Han"));
  EXPECT_FALSE(withoutChinese(u"氣[qi4] of the lungs"));
}

}  // namespace
