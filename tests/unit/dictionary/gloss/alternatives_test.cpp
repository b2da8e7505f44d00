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

// "鹿野乡 | Luye or Luyeh township …"
TEST(NamesWithKind, GivesEachNameTheKind) {
  using Names = std::vector<std::u16string>;
  using dictionary::namesWithKind;
  EXPECT_EQ(namesWithKind(u"Luye or Luyeh township"), (Names{u"Luye township", u"Luyeh township"}));
  for (const std::u16string_view name : {u"Yuci district", u"one or two islands",
                                         u"Luye or township", u"or city", u"Fu or Fu Hsi"}) {
    EXPECT_EQ(namesWithKind(name), (Names{std::u16string(name)}));
  }
}

}  // namespace
