#include "dictionary/gloss/appositions.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace {

using dictionary::describesPlace;
using dictionary::isDescription;
using dictionary::withoutApposition;
using Views = std::vector<std::u16string_view>;

Views listed(std::u16string_view gloss) { return dictionary::listedEquivalents(gloss, false); }

// "街市 | wet market, i.e. a marketplace …", "麦冬 | dwarf lilyturf, whose tuber is used in TCM",
// "蛋氨酸 | methionine, an essential amino acid", "四大发明 | the four great Chinese inventions: …"
TEST(WithoutApposition, CutsBeforeAMarker) {
  EXPECT_EQ(withoutApposition(u"wet market, i.e. a marketplace"), u"wet market");
  EXPECT_EQ(withoutApposition(u"dwarf lilyturf, whose tuber is used"), u"dwarf lilyturf");
  EXPECT_EQ(withoutApposition(u"methionine, an essential amino acid"), u"methionine");
  EXPECT_EQ(withoutApposition(u"four great inventions: paper, printing"), u"four great inventions");
  EXPECT_EQ(withoutApposition(u"triad, Chinese crime gang"), u"triad");
}

// "以眼还眼,以牙还牙 | an eye for an eye, a tooth for a tooth", "韵事 | in literature, the cue for
// a poem", "其他 | other times, other manners"
TEST(WithoutApposition, LeavesSentencesWhole) {
  for (const std::u16string_view gloss :
       {u"an eye for an eye, a tooth for a tooth", u"in literature, the cue for a poem",
        u"other times, other manners", u"to wait, a little", u"to be frank"}) {
    EXPECT_EQ(withoutApposition(gloss), gloss);
  }
}

// "努克 | Nuuk, capital of Greenland", "旧金山 | San Francisco, California",
// "中日韩 | China, Japan and Korea", "苏绣 | Suzhou embroidery, one of the four …"
TEST(WithoutApposition, CutsNames) {
  EXPECT_EQ(withoutApposition(u"Nuuk, capital of Greenland"), u"Nuuk");
  EXPECT_EQ(withoutApposition(u"San Francisco, California"), u"San Francisco");
  EXPECT_EQ(withoutApposition(u"Suzhou embroidery, Jiangsu style"), u"Suzhou embroidery");
  EXPECT_EQ(withoutApposition(u"China, Japan and Korea"), u"China, Japan and Korea");
}

// "开尔文 | Lord Kelvin 1824-1907, British physicist", "秦始皇帝 | the First Emperor 259-210 BC"
TEST(WithoutApposition, CutsYears) {
  EXPECT_EQ(withoutApposition(u"Lord Kelvin 1824-1907, British physicist"), u"Lord Kelvin");
  EXPECT_EQ(withoutApposition(u"First Emperor 259-210 BC"), u"First Emperor");
  EXPECT_EQ(withoutApposition(u"Boeing 747"), u"Boeing 747");
}

// "二十年目睹之怪现状 | The Strange State of the World Witnessed Over 20 Years, novel by …"
TEST(WithoutApposition, LeavesTitlesWhole) {
  EXPECT_EQ(withoutApposition(u"Strange State of the World Witnessed"),
            u"Strange State of the World Witnessed");
}

// "投桃报李 | Scratch my back, and I'll scratch yours.", "安得 | Oh, if only there were..."
TEST(WithoutApposition, TellsNamesFromSentences) {
  for (const std::u16string_view gloss :
       {u"Scratch my back, and I'll scratch yours", u"Oh, if only there were",
        u"Jiang Ziya is fishing, take the hook"}) {
    EXPECT_EQ(withoutApposition(gloss), gloss);
  }
}

// "交城 | Jiaocheng county in Lüliang, Shanxi", "鹿野乡 | Luye or Luyeh township in Taitung
// County", "雅拉雪山 | Mt Tiantai near Shaoxing in Zhejiang", "新源县 | Xinyuan County or Künes
// nahiyisi in …"
TEST(WithoutApposition, CutsPlacesBehindTheirKind) {
  EXPECT_EQ(withoutApposition(u"Jiaocheng county in Luliang, Shanxi"), u"Jiaocheng county");
  EXPECT_EQ(withoutApposition(u"Luye or Luyeh township in Taitung County"),
            u"Luye or Luyeh township");
  EXPECT_EQ(withoutApposition(u"Xinyuan County or Kunes nahiyisi in Ili"), u"Xinyuan County");
  EXPECT_EQ(withoutApposition(u"Mt Tiantai near Shaoxing in Zhejiang"), u"Mt Tiantai");
  EXPECT_EQ(withoutApposition(u"Alice in Wonderland"), u"Alice in Wonderland");
  EXPECT_EQ(withoutApposition(u"City of London"), u"City of London");
}

// "劙 | to divide, to partition", "苑 | feast, banquet", "沙坑 | sand trap, bunker"
TEST(ListedEquivalents, SplitsListsOfWordsAndVerbs) {
  EXPECT_EQ(listed(u"feast, banquet"), (Views{u"feast", u"banquet"}));
  EXPECT_EQ(listed(u"to sift, to strain"), (Views{u"to sift", u"to strain"}));
  EXPECT_EQ(listed(u"sand trap, bunker"), (Views{u"sand trap", u"bunker"}));
  EXPECT_EQ(listed(u"earthen jug, crock, cistern"), (Views{u"earthen jug", u"crock", u"cistern"}));
}

// "杏眼 | large, round eyes", "坑蒙拐骗 | to swindle, scam and deceive", "旧金山", "克里斯汀 |
// (name) Christine, Kristine, Kristen, Kristin etc"
TEST(ListedEquivalents, LeavesOtherCommas) {
  EXPECT_EQ(listed(u"large, round eyes"), (Views{u"large, round eyes"}));
  EXPECT_EQ(listed(u"to swindle, scam and deceive"), (Views{u"to swindle, scam and deceive"}));
  EXPECT_EQ(listed(u"quiet, silent, and lonely"), (Views{u"quiet, silent, and lonely"}));
  EXPECT_EQ(listed(u"Limerick, Ireland"), (Views{u"Limerick, Ireland"}));
  EXPECT_EQ(dictionary::listedEquivalents(u"Christine, Kristin etc", true),
            (Views{u"Christine", u"Kristin"}));
}

// "艘 | classifier for ships", "萑 | a kind of reed", "二手车 | used car", "语气助词 | modal
// particle"
TEST(IsDescription, TellsDescriptionsFromTranslations) {
  for (const std::u16string_view gloss :
       {u"classifier for ships", u"a kind of reed", u"used in place names", u"name of a river",
        u"coins, badges etc", u"surname Li"}) {
    EXPECT_TRUE(isDescription(gloss));
  }
  for (const std::u16string_view gloss :
       {u"used car", u"indicator", u"modal particle", u"particle accelerator", u"kind of",
        u"exclamation mark", u"radical reform", u"transliteration"}) {
    EXPECT_FALSE(isDescription(gloss));
  }
}

// "普定县 | Puding, a county in Anshun City, Guizhou", "榆次区 | Yuci district of Jinzhong city"
TEST(DescribesPlace, ReadsNameAndApposition) {
  EXPECT_TRUE(describesPlace(u"Puding, a county in Anshun City, Guizhou"));
  EXPECT_TRUE(describesPlace(u"Hengyang, prefecture-level city in Hunan Province"));
  EXPECT_TRUE(describesPlace(u"Nuuk, capital of Greenland"));
  EXPECT_TRUE(describesPlace(u"Yuci district of Jinzhong city"));
  EXPECT_FALSE(describesPlace(u"Karl Marx, German philosopher"));
  EXPECT_FALSE(describesPlace(u"city wall"));
  EXPECT_FALSE(describesPlace(u"wild dog"));
}

}  // namespace
