#include "dictionary/gloss/alternatives.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

using Views = std::vector<std::u16string_view>;

Views listed(std::u16string_view gloss) { return dictionary::listedEquivalents(gloss, false); }

// "劙 | to divide, to partition", "苑 | feast, banquet", "沙坑 | sand trap, bunker"
TEST(ListedEquivalents, SplitsListsOfWordsAndVerbs) {
  EXPECT_EQ(listed(u"feast, banquet"), (Views{u"feast", u"banquet"}));
  EXPECT_EQ(listed(u"to sift, to strain"), (Views{u"to sift", u"to strain"}));
  EXPECT_EQ(listed(u"sand trap, bunker"), (Views{u"sand trap", u"bunker"}));
  EXPECT_EQ(listed(u"earthen jug, crock, cistern"), (Views{u"earthen jug", u"crock", u"cistern"}));
}

// "克拉克 | Clark or Clarke", "利伯曼 | Liberman, Lieberman or Liebermann", "南门二 | Alpha
// Centauri or Rigel Kentaurus", "光驱 | CD or DVD Drive"
TEST(ListedEquivalents, SplitsSpellingsOfNames) {
  EXPECT_EQ(listed(u"Clark or Clarke"), (Views{u"Clark", u"Clarke"}));
  EXPECT_EQ(listed(u"Liberman, Lieberman or Liebermann"),
            (Views{u"Liberman", u"Lieberman", u"Liebermann"}));
  EXPECT_EQ(listed(u"Jimmy, Jimmie, or Jimi"), (Views{u"Jimmy", u"Jimmie", u"Jimi"}));
  EXPECT_EQ(listed(u"Alpha Centauri or Rigel Kentaurus"),
            (Views{u"Alpha Centauri", u"Rigel Kentaurus"}));
  EXPECT_EQ(listed(u"CD or DVD Drive"), (Views{u"CD or DVD Drive"}));
  EXPECT_EQ(listed(u"Luye or Luyeh township"), (Views{u"Luye or Luyeh township"}));
  EXPECT_EQ(listed(u"one or two"), (Views{u"one or two"}));
}

// "个头 | (coll.) my ass!; yeah, right!", "坏了 | oh, no!", "红橙黄绿蓝靛紫 | red, orange, yellow,
// …"
TEST(ListedEquivalents, LeavesExclamationsAndLongLists) {
  for (const std::u16string_view gloss :
       {u"yeah, right!", u"oh, no!", u"red, orange, yellow, green, blue, indigo, violet"}) {
    EXPECT_EQ(listed(gloss), (Views{gloss}));
  }
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

// "凌 | to insult or maltreat", "椊 | a plug or cork", "总 | … sooner or later"
TEST(AlternativeWords, PartsTwoWords) {
  using dictionary::alternativeWords;
  EXPECT_EQ(alternativeWords(u"to insult or maltreat"), (Views{u"insult", u"maltreat"}));
  EXPECT_EQ(alternativeWords(u"a plug or cork"), (Views{u"plug", u"cork"}));
  for (const std::u16string_view gloss : {u"one or so", u"sand pit or bunker", u"or", u"to boil",
                                          u"one or two or three", u" or ", u"sooner or later"}) {
    EXPECT_EQ(alternativeWords(gloss), (Views{gloss}));
  }
}

using Names = std::vector<std::u16string>;
using dictionary::namesWithKind;

// "鹿野乡 | Luye or Luyeh township …", "新北 | Hsinpei or New Taipei city …", "苏州大学 | Suzhou or
// Soochow University", "夏 | the Xia or Hsia dynasty", "藏 | abbr. for Xizang or Tibet Autonomous
// Region", "且末 | Cherchen nahiyisi or Qiemo county …", "须弥 | Mt Meru or Sumeru, …"
TEST(NamesWithKind, GivesEachNameTheKind) {
  EXPECT_EQ(namesWithKind(u"Luye or Luyeh township"), (Names{u"Luye township", u"Luyeh township"}));
  EXPECT_EQ(namesWithKind(u"Hsinpei or New Taipei city"),
            (Names{u"Hsinpei city", u"New Taipei city"}));
  EXPECT_EQ(namesWithKind(u"Suzhou or Soochow University"),
            (Names{u"Suzhou University", u"Soochow University"}));
  EXPECT_EQ(namesWithKind(u"Xia or Hsia dynasty"), (Names{u"Xia dynasty", u"Hsia dynasty"}));
  EXPECT_EQ(namesWithKind(u"Xizang or Tibet Autonomous Region"),
            (Names{u"Xizang Autonomous Region", u"Tibet Autonomous Region"}));
  EXPECT_EQ(namesWithKind(u"Cherchen nahiyisi or Qiemo county"),
            (Names{u"Cherchen nahiyisi", u"Qiemo county"}));
  EXPECT_EQ(namesWithKind(u"You County or Youxian"), (Names{u"You County", u"Youxian"}));
  EXPECT_EQ(namesWithKind(u"Plain and Bordered White banner or Shuluun khoshuu"),
            (Names{u"Plain and Bordered White banner"}));
  EXPECT_EQ(namesWithKind(u"Mt Meru or Sumeru"), (Names{u"Mt Meru", u"Mt Sumeru"}));
}

// "仡佬族 | Gelao or Klau ethnic group of Guizhou", "土族 | Tu or White Mongol ethnic group …",
// "唐古拉 | Dangla or Tanggula mountain range on …"
TEST(NamesWithKind, ReadsPeoplesAndMountains) {
  EXPECT_EQ(namesWithKind(u"Gelao or Klau ethnic group"),
            (Names{u"Gelao ethnic group", u"Klau ethnic group"}));
  EXPECT_EQ(namesWithKind(u"Tu or White Mongol ethnic group"),
            (Names{u"Tu ethnic group", u"White Mongol ethnic group"}));
  EXPECT_EQ(namesWithKind(u"Dangla or Tanggula mountain range"),
            (Names{u"Dangla mountain range", u"Tanggula mountain range"}));
}

// "毕宿五 | Aldebaran or Alpha Tauri", "立夏 | Lixia or Start of Summer, …", "金瓶梅 | Jinpingmei
// or the Golden Lotus", "罗姗 | Roxanne or Roxane or Rosanna", "象牙海岸 | Côte d'Ivoire or Ivory
// Coast"
TEST(NamesWithKind, PartsNamesOfDifferentLengths) {
  EXPECT_EQ(namesWithKind(u"Lixia or Start of Summer"), (Names{u"Lixia", u"Start of Summer"}));
  EXPECT_EQ(namesWithKind(u"Aldebaran or Alpha Tauri"), (Names{u"Aldebaran", u"Alpha Tauri"}));
  EXPECT_EQ(namesWithKind(u"Jinpingmei or the Golden Lotus"),
            (Names{u"Jinpingmei", u"Golden Lotus"}));
  EXPECT_EQ(namesWithKind(u"Roxanne or Roxane or Rosanna"),
            (Names{u"Roxanne", u"Roxane", u"Rosanna"}));
  EXPECT_EQ(namesWithKind(u"Cote d'Ivoire or Ivory Coast"),
            (Names{u"Cote d'Ivoire", u"Ivory Coast"}));
}

// "斯宾诺莎 | Baruch or Benedict Spinoza", "宋书 | History of Song of the Southern Dynasties or Liu
// Song", "陛下 | His or Her Majesty", "马蹄星云 | Omega or Horseshoe Nebula M17", "藏 | Buddhist or
// Taoist scripture"
TEST(NamesWithKind, LeavesOtherTexts) {
  for (const std::u16string_view name :
       {u"Yuci district", u"one or two islands", u"Luye or township", u"or city",
        u"Baruch or Benedict Spinoza", u"History of Song or Liu Song", u"His or Her Majesty",
        u"Lin Zexu or Lin Tse-hsu \"Commissioner Lin\"", u"Omega or Horseshoe Nebula M17",
        u"Buddhist or Taoist scripture"}) {
    EXPECT_EQ(namesWithKind(name), (Names{std::u16string(name)}));
  }
}

}  // namespace
