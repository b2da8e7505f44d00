#include "dictionary/gloss/cedict.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using dictionary::CedictRecord;
using dictionary::chineseEntries;
using dictionary::ChineseEntry;
using dictionary::Gloss;
using dictionary::GlossValue;
using Texts = std::vector<std::u16string>;
using Records = std::vector<CedictRecord>;

CedictRecord record(const std::u16string& word, const std::u16string& pinyin, Texts glosses) {
  return {word, word, pinyin, std::move(glosses)};
}

/// The glosses of the word; none if it has no entry.
std::vector<Gloss> glossesOf(const Records& records, const std::u16string& word) {
  for (const ChineseEntry& entry : chineseEntries(records)) {
    if (entry.word == word) return entry.glosses;
  }
  return {};
}

Texts textsOf(const Records& records, const std::u16string& word) {
  Texts texts;
  for (const Gloss& gloss : glossesOf(records, word)) texts.push_back(gloss.english);
  return texts;
}

TEST(ChineseEntries, KeepsTheOrderOfTheSource) {
  const std::vector<ChineseEntry> entries = chineseEntries(
      {record(u"天", u"tian1", {u"sky", u"day; heaven"}), record(u"地", u"di4", {u"earth"})});
  ASSERT_EQ(entries.size(), 2U);
  EXPECT_EQ(entries[0].word, u"天");
  EXPECT_EQ(textsOf({record(u"天", u"tian1", {u"sky", u"day; heaven"})}, u"天"),
            (Texts{u"sky", u"day", u"heaven"}));
}

// "药 | leaf of the iris/variant of 藥|药[yao4]", "药 | medicine …", "密 | surname Mi"
TEST(ChineseEntries, JoinsReadingsTheMainOneFirst) {
  const Records records = {record(u"长", u"zhang3", {u"chief", u"elder"}),
                           record(u"长", u"chang2", {u"length", u"long", u"forever"}),
                           record(u"长", u"Chang2", {u"Chang"})};
  EXPECT_EQ(textsOf(records, u"长"),
            (Texts{u"length", u"long", u"chief", u"forever", u"elder", u"Chang"}));
}

// "公安 | see 公安縣|公安县[Gong1 an1 Xian4]", "公安 | … public safety/public security"
TEST(ChineseEntries, PutsNamesAfterAllOtherMeanings) {
  const Records records = {record(u"公安", u"Gong1 an1", {u"Gong'an"}),
                           record(u"公安", u"gong1 an1", {u"safety", u"security", u"police"})};
  EXPECT_EQ(textsOf(records, u"公安"), (Texts{u"safety", u"security", u"police", u"Gong'an"}));
}

// "个 | (classifier …)/(bound form) individual", "密 | surname Mi/name of an ancient state"
TEST(ChineseEntries, PutsTheBestValuesFirst) {
  const Records records = {
      record(u"密", u"mi4", {u"surname Mi", u"a kind of state", u"(Tw) tight", u"secret"})};
  EXPECT_EQ(textsOf(records, u"密"), (Texts{u"secret", u"tight", u"kind of state", u"surname Mi"}));
}

TEST(ChineseEntries, TakesEqualTextsTogether) {
  const std::vector<Gloss> glosses =
      glossesOf({record(u"华", u"hua2", {u"China", u"china (chemistry)", u"china"})}, u"华");
  ASSERT_EQ(glosses.size(), 1U);
  EXPECT_EQ(glosses[0].english, u"China");
  EXPECT_EQ(glosses[0].subjects, setOf(dictionary::Subject::kChemistry));
}

// "金安 | see 金安區|金安区[Jin1 an1 Qu1]", "㬎 | old variant of 顯|显[xian3]"
TEST(ChineseEntries, FollowsReferences) {
  const Records records = {
      record(u"甲", u"jia3", {u"see 乙[yi3]"}), record(u"乙", u"yi3", {u"variant of 丙[bing3]"}),
      record(u"丙", u"bing3", {u"third"}), record(u"丁", u"ding1", {u"old variant of 丙[bing3]"})};
  EXPECT_EQ(textsOf(records, u"甲"), (Texts{u"third"}));
  EXPECT_EQ(glossesOf(records, u"甲").at(0).value, GlossValue::kPair);
  EXPECT_EQ(glossesOf(records, u"丁").at(0).value, GlossValue::kUsage);
}

TEST(ChineseEntries, EndsInLoops) {
  EXPECT_TRUE(chineseEntries({record(u"甲", u"jia3", {u"see 乙[yi3]", u"see 甲[jia3]"}),
                              record(u"乙", u"yi3", {u"see 甲[jia3]", u"see 乙[yi3]"})})
                  .empty());
}

// "抬 | variant of 抬[tai2]": the traditional forms differ; "药 | variant of 藥|药[yao4]"
TEST(ChineseEntries, FindsTheReferencesReading) {
  Records records = {record(u"乐器", u"yue4 qi4", {u"see 乐[yue4]"}),
                     record(u"乐", u"le4", {u"happy"}), record(u"乐", u"yue4", {u"music"})};
  EXPECT_EQ(textsOf(records, u"乐器"), (Texts{u"music"}));
  records[0].glosses = {u"see 乐[lao4]"};
  EXPECT_EQ(textsOf(records, u"乐器"), (Texts{u"happy", u"music"})) << "none is the one";
  records[0].glosses = {u"see 樂|乐[yue4]"};
  records[1].traditional = u"樂";
  EXPECT_EQ(textsOf(records, u"乐器"), (Texts{u"happy", u"music"}));
}

// "一时 | … see also 暂时", "徕 | used in 招徠|招徕[zhao1 lai2]"
TEST(ChineseEntries, FollowsRelatedWordsOnlyForWantOfMeanings) {
  const Records records = {
      record(u"甲", u"jia3", {u"first", u"see also 乙[yi3]"}),
      record(u"丙", u"bing3", {u"see also 乙[yi3]"}), record(u"丁", u"ding1", {u"used in 乙[yi3]"}),
      record(u"戊", u"wu4", {u"cf. 乙[yi3]"}), record(u"乙", u"yi3", {u"second"})};
  EXPECT_EQ(textsOf(records, u"甲"), (Texts{u"first"}));
  EXPECT_EQ(textsOf(records, u"丙"), (Texts{u"second"}));
  EXPECT_EQ(glossesOf(records, u"丁").at(0).value, GlossValue::kPart);
  EXPECT_TRUE(glossesOf(records, u"戊").empty());
}

// "爱屋及乌 | lit. love the house and its crow (idiom)/Love me, love my dog.", "人算不如天算 | man
// proposes, God disposes (idiom)/…"
TEST(ChineseEntries, ReadsAllGlossesOfAnIdiomAsPhrases) {
  EXPECT_EQ(
      textsOf({record(u"甲", u"jia3", {u"first (idiom)", u"man proposes, God disposes"})}, u"甲"),
      (Texts{u"first", u"man proposes, God disposes"}));
}

// "王 | king or monarch", "生死 | life or death"
TEST(ChineseEntries, PartsTheMeaningsOfACharacterOnly) {
  EXPECT_EQ(textsOf({record(u"王", u"wang2", {u"king or monarch"})}, u"王"),
            (Texts{u"king", u"monarch"}));
  EXPECT_EQ(textsOf({record(u"生死", u"sheng1 si3", {u"life or death"})}, u"生死"),
            (Texts{u"life or death"}));
}

// "秘 | see 秘魯|秘鲁[Bi4 lu3]", "㬎 | old variant of 顯|显[xian3]", "壳牌 | see 殼牌公司"
TEST(ChineseEntries, GivesACharacterNoMeaningOfAWord) {
  const Records records = {record(u"秘", u"bi4", {u"see 秘鲁[Bi4 lu3]"}),
                           record(u"秘鲁", u"Bi4 lu3", {u"Peru"}),
                           record(u"壳牌", u"Qiao4 pai2", {u"see 壳牌公司[Qiao4 pai2 gong1 si1]"}),
                           record(u"壳牌公司", u"Qiao4 pai2 gong1 si1", {u"Shell"})};
  EXPECT_EQ(glossesOf(records, u"秘").at(0).value, GlossValue::kPart);
  EXPECT_EQ(glossesOf(records, u"壳牌").at(0).value, GlossValue::kPair);
}

// "甪 | place name", "地名 | place name; toponym"
TEST(ChineseEntries, LeavesOutWhatLabelsTheWord) {
  EXPECT_TRUE(glossesOf({record(u"甪", u"lu4", {u"place name"})}, u"甪").empty());
  EXPECT_EQ(textsOf({record(u"地名", u"di4 ming2", {u"place name; toponym"})}, u"地名"),
            (Texts{u"toponym", u"place name"}));
}

// "岱 | Mt Tai in Shandong/same as 泰山": 泰山 is Tarzan as well
TEST(ChineseEntries, FollowsNoDoubtfulReferenceBesideMeanings) {
  const Records records = {record(u"岱", u"dai4", {u"Mt Tai", u"same as 泰山"}),
                           record(u"泰山", u"Tai4 shan1", {u"Tarzan"}),
                           record(u"岳", u"yue4", {u"same as 泰山"}),
                           record(u"山", u"shan1", {u"hill", u"same as 泰山[Tai4 shan1]"})};
  EXPECT_EQ(textsOf(records, u"岱"), (Texts{u"Mt Tai"}));
  EXPECT_EQ(textsOf(records, u"岳"), (Texts{u"Tarzan"}));
  EXPECT_EQ(textsOf(records, u"山"), (Texts{u"hill", u"Tarzan"}));
}

// "阿穆尔河 | Amur River/same as 黑龍江|黑龙江[Hei1 long2 jiang1]", "黑龙江 | Heilong River/see
// 黑龍江省", "喵的 | drat/(euphemistic variant of 媽的)", "妈的 | see 他媽的"
TEST(ChineseEntries, FollowsNoSecondReferenceFromOneMeaningToAnother) {
  Records records = {record(u"甲", u"jia3", {u"Amur River", u"same as 乙[yi3]"}),
                     record(u"乙", u"yi3", {u"Heilong River", u"see 丙[bing3]"}),
                     record(u"丙", u"bing3", {u"Heilongjiang Province"})};
  EXPECT_EQ(textsOf(records, u"甲"), (Texts{u"Amur River", u"Heilong River"}));
  records[1].glosses = {u"see 丙[bing3]"};
  EXPECT_EQ(textsOf(records, u"甲"), (Texts{u"Amur River", u"Heilongjiang Province"}));
}

// "銭[qian2] | Japanese variant of 錢|钱", "仏[fo2] | Japanese variant of 佛", "啵[bo5] |
// grammatical particle equivalent to 吧"
TEST(ChineseEntries, TakesTheSameReadingOfAVariantWithoutPinyin) {
  Records records = {record(u"银", u"qian2", {u"variant of 钱"}),
                     record(u"钱", u"Qian2", {u"Qian"}), record(u"钱", u"qian2", {u"coin"})};
  EXPECT_EQ(textsOf(records, u"银"), (Texts{u"coin"}));
  records[2].pinyin = u"jian3";
  EXPECT_EQ(textsOf(records, u"银"), (Texts{u"Qian"}));
  records[1].pinyin = u"Zan1";
  EXPECT_TRUE(textsOf(records, u"银").empty());
  records.pop_back();
  EXPECT_EQ(textsOf(records, u"银"), (Texts{u"Qian"})) << "the only reading";
}

// "扛大梁 | lit. to carry the big beam", "变本加厉 | lit. change …; to become more intense"
TEST(ChineseEntries, HasALiteralMeaningOnlyForWantOfAnother) {
  EXPECT_EQ(glossesOf({record(u"甲", u"jia3", {u"lit. first blow"})}, u"甲").at(0).value,
            GlossValue::kUsage);
  const std::vector<Gloss> both =
      glossesOf({record(u"甲", u"jia3", {u"lit. first blow", u"fig. to begin"})}, u"甲");
  ASSERT_EQ(both.size(), 2U);
  EXPECT_EQ(both[0].english, u"begin");
  EXPECT_EQ(both[1].value, GlossValue::kLiteral);
}

// "𫠒", "3C", "没有规矩，不成方圆", "卡尔·马克思", "的", "□"
TEST(ChineseEntries, LeavesOutWhatCannotBeAHeadword) {
  const auto wordOf = [](const std::u16string& word) {
    const std::vector<ChineseEntry> entries = chineseEntries({record(word, u"x", {u"x"})});
    return entries.empty() ? std::u16string() : entries[0].word;
  };
  EXPECT_EQ(wordOf(u"𫠒"), u"");
  EXPECT_EQ(wordOf(u"3C"), u"");
  EXPECT_EQ(wordOf(u"□"), u"");
  EXPECT_EQ(wordOf(u"3D打印"), u"3D打印");
  EXPECT_EQ(wordOf(u"没有规矩，不成方圆"), u"没有规矩,不成方圆");
  EXPECT_EQ(wordOf(u"卡尔·马克思"), u"卡尔·马克思");
  EXPECT_EQ(wordOf(u"的"), u"的");
  EXPECT_EQ(wordOf(std::u16string(20, u'一')), std::u16string(20, u'一'));
  EXPECT_EQ(wordOf(std::u16string(21, u'一')), u"");
  EXPECT_EQ(wordOf(u"3D" + std::u16string(19, u'一')), u"") << "letters count";
}

}  // namespace
