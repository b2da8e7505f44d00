#include "dictionary/gloss/descriptions.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using dictionary::isDescription;
using dictionary::isUsageNote;
using dictionary::labelsItsWord;

// "萑 | a kind of reed", "二手车 | used car", "语气助词 | modal particle"
TEST(GlossDescription, TellsDescriptionsFromTranslations) {
  for (const std::u16string_view gloss :
       {u"a kind of reed", u"coins, badges etc", u"surname Li", u"place name"}) {
    EXPECT_TRUE(isDescription(gloss));
  }
  for (const std::u16string_view gloss :
       {u"used car", u"indicator", u"modal particle", u"particle accelerator", u"kind of",
        u"exclamation mark", u"radical reform", u"transliteration"}) {
    EXPECT_FALSE(isDescription(gloss));
  }
}

// "艘 | classifier for ships", "灞 | name of a river", "垞 | used in place names", "鄮 | ancient
// place name …", "蛵 | less common word for dragonfly", "两宋 | refers to the Northern …", "嘧 | as
// in 嘧啶[mi4 ding4], pyrimidine", "林卡 | transliteration of Tibetan lingka: garden",
// "皿 | radical no. 108", "岒 | character used in place names", "罢了 | a modal particle indicating
// …"
TEST(GlossDescription, KnowsNotesOfUse) {
  for (const std::u16string_view gloss :
       {u"classifier for ships", u"name of a river", u"used in place names", u"ancient place name",
        u"used in female names", u"less common word for dragonfly", u"refers to the Northern Song",
        u"last line of the poem by Du Fu", u"as in pyrimidine", u"sometimes called hieroglyph",
        u"transliteration of Tibetan lingka: garden", u"radical no. 108", u"interj.",
        u"character used in place names", u"comes at the end of the sentence to indicate a degree",
        u"a modal particle indicating, ok", u"classifier for: ingots", u"meaning uncertain"}) {
    EXPECT_TRUE(isUsageNote(gloss));
  }
  for (const std::u16string_view gloss :
       {u"used car", u"used to", u"classifier", u"as in the past", u"sometimes", u"name",
        u"place name", u"transliteration", u"modal particle", u"a particle", u"radical", u"verb",
        u"interjection"}) {
    EXPECT_FALSE(isUsageNote(gloss));
  }
}

// "疒 | Kang Xi radical 104", "衤 | the left-radical form of Kangxi radical 145 …", "丨 | radical
// in Chinese characters", "人不可貌相 | often in combination …", "外科医生 | as opposed to
// physician …", "道光 | reign name of Qing emperor (1821-1850)", "进退有常 | … many translations
// are possible"
TEST(GlossDescription, KnowsLabelsAndRemarks) {
  for (const std::u16string_view gloss :
       {u"Kang Xi radical 104", u"the left-radical form of Kangxi radical 145",
        u"radical in Chinese characters", u"in combination with it", u"as opposed to physician",
        u"reign name of Qing emperor", u"many translations are possible", u"with negative",
        u"commonly used in Korean names", u"suffix attached to the name of a person"}) {
    EXPECT_TRUE(isUsageNote(gloss));
  }
  for (const std::u16string_view gloss :
       {u"commonly used", u"in combination", u"reign name of the emperor Guangxu", u"suffix"}) {
    EXPECT_FALSE(isUsageNote(gloss));
  }
}

// "榜葛剌 | old Chinese name for Bengal, now written 孟加拉", "孔明 | courtesy name of Zhuge
// Liang", "大秦 | Han Dynasty term for the Roman Empire", "满剌加 | Ming Dynasty name for modern
// day Malacca", "汉高祖 | posthumous name of the first Han emperor Liu Bang", "盛京 | historical
// name of Shenyang in modern Liaoning province", "兰舟 | poetic term for boat", "福晋 | in Qing
// dynasty, Manchurian word for wife"
TEST(OtherNameFor, GivesWhatIsNamed) {
  using dictionary::otherNameFor;
  EXPECT_EQ(otherNameFor(u"old Chinese name for Bengal, now written"), u"Bengal");
  EXPECT_EQ(otherNameFor(u"courtesy name of Zhuge Liang"), u"Zhuge Liang");
  EXPECT_EQ(otherNameFor(u"Han Dynasty term for the Roman Empire"), u"Roman Empire");
  EXPECT_EQ(otherNameFor(u"Ming Dynasty name for modern day Malacca"), u"Malacca");
  EXPECT_EQ(otherNameFor(u"posthumous name of the first Han emperor Liu Bang"), u"Liu Bang");
  EXPECT_EQ(otherNameFor(u"historical name of Shenyang in modern Liaoning"), u"Shenyang");
  EXPECT_EQ(otherNameFor(u"poetic term for boat"), u"boat");
  EXPECT_EQ(otherNameFor(u"a general term for plants"), u"plants");
  EXPECT_EQ(otherNameFor(u"in Qing dynasty, Manchurian word for wife"), u"wife");
}

// "乳名 | pet name for a child", "一字不差 | word for word", "任期 | term of office", "汶 |
// classical name of river in Shandong", "木骨都束 | Chinese name for African kingdom in Somalia",
// "洋鬼子 | term of abuse for Westerners", "闯出名堂 | to make a name for oneself", "蛮子 |
// contemptuous term for people from southern China"
TEST(OtherNameFor, GivesNothingOfDescriptions) {
  for (const std::u16string_view gloss :
       {u"pet name for a child", u"word for word", u"term of office",
        u"term of abuse for Westerners", u"classical name of river in Shandong",
        u"Chinese name for African kingdom in Somalia", u"to make a name for oneself",
        u"contemptuous term for people from China", u"title of honor",
        u"Temujin, birth name of Genghis Khan", u"old name for", u"common name",
        u"historical name for several bodies of water"}) {
    EXPECT_EQ(dictionary::otherNameFor(gloss), u"");
  }
}

// "太平 | place name", "地名 | place name; toponym", "末 | … (suffix)", "后缀 | suffix", "嘅 |
// possessive particle (Cantonese)", "攸 | adverbial prefix", "坋粒 | silt particle"
TEST(GlossDescription, KnowsWhatLabelsItsWord) {
  EXPECT_TRUE(labelsItsWord(u"place name", u"太平"));
  EXPECT_FALSE(labelsItsWord(u"place name", u"地名"));
  EXPECT_TRUE(labelsItsWord(u"suffix", u"末"));
  EXPECT_FALSE(labelsItsWord(u"suffix", u"后缀"));
  EXPECT_FALSE(labelsItsWord(u"end", u"末"));
  EXPECT_TRUE(labelsItsWord(u"possessive particle", u"嘅"));
  EXPECT_TRUE(labelsItsWord(u"adverbial prefix", u"攸"));
  EXPECT_TRUE(labelsItsWord(u"phonetic ga", u"噶"));
  EXPECT_FALSE(labelsItsWord(u"silt particle", u"坋粒"));
  EXPECT_FALSE(labelsItsWord(u"phonetic loan", u"假借"));
}

}  // namespace
