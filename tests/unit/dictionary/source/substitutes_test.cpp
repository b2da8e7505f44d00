#include "dictionary/source/substitutes.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using dictionary::restoreSubstitutes;

TEST(RestoreSubstitutes, RestoresHanCharactersThatAreCertain) {
  EXPECT_EQ(restoreSubstitutes(u"[化] 异\u252D唑, 苯胺\u2539离子"), u"[化] 异噁唑, 苯胺鎓离子");
  EXPECT_EQ(restoreSubstitutes(u"[医] \u2502恶性黑瘤"), u"[医] 恶性黑瘤");
  EXPECT_EQ(restoreSubstitutes(u"ё弓状韧带, 聚щ花序, 类ж"), u"腘弓状韧带, 聚伞花序, 类䏡");
  EXPECT_EQ(restoreSubstitutes(u"邻Ж的"), u"邻牙合的");
  EXPECT_EQ(restoreSubstitutes(u"一六○五"), u"一六〇五");
  EXPECT_EQ(restoreSubstitutes(u"苯并\uE23C唑"), u"苯并噁唑");
}

// menthol "[化] 薄荷醇; ┮醇", diamino-stilbene "[医] 二氨基┮", azepine "[医] 庚因, 氮杂┭",
// Oldenlandia diffusa "[医] 白花蛇舌草, 二叶┹", "quince | [医] ╂Т"
TEST(RestoreSubstitutes, DependsOnTheBook) {
  EXPECT_EQ(restoreSubstitutes(u"[化] \u252E醇"), u"[化] 䓝醇");
  EXPECT_EQ(restoreSubstitutes(u"[医] 二氨基\u252E"), u"[医] 二氨基芪");
  EXPECT_EQ(restoreSubstitutes(u"[医] 氮杂\u252D"), u"[医] 氮杂䓬");
  EXPECT_EQ(restoreSubstitutes(u"(甲 的复数) [医] 二叶\u2539"), u"(甲 的复数) [医] 二叶葎");
  EXPECT_EQ(restoreSubstitutes(u"[医] \u2542\u0422"), u"[医] 榅桲");
  EXPECT_EQ(restoreSubstitutes(u"\u252E醇"), u"\u252E醇");
}

// "Abutilon Gaertn. | [医] ò麻属", "Hovenia Thunb. | [医] 枳Р属", "ravissant | à ～ 绝妙地",
// "Fallopia nervosa | [医] 破布叶, à宝叶", "trigla | 鲂\uE248", "ssx | 磺胺异？唑"
TEST(RestoreSubstitutes, DependsOnTheNeighbours) {
  EXPECT_EQ(restoreSubstitutes(u"[医] \u00F2麻属, 枳\u0420属"), u"[医] 苘麻属, 枳椇属");
  EXPECT_EQ(restoreSubstitutes(u"鲂\uE248, 磺胺异？唑"), u"鲂鮄, 磺胺异噁唑");
  for (const std::u16string line : {u"\u00E0 ～ 绝妙地", u"[医] 破布叶, \u00E0宝叶",
                                    u"[医] 甲\u0420属", u"\uE248", u"是吗？"}) {
    EXPECT_EQ(restoreSubstitutes(line), line) << line.size();
  }
}

TEST(RestoreSubstitutes, LeavesCyrillicWordsAlone) {
  EXPECT_EQ(restoreSubstitutes(u"жизнь, ещё"), u"жизнь, ещё");
}

// "armoracia | [医] 西洋山┯菜, 香辣根", "behenic acid | [化] 山┵酸"
TEST(RestoreSubstitutes, KnowsTheSameCharacterInBothBooks) {
  EXPECT_EQ(restoreSubstitutes(u"[医] 西洋山\u252F菜, 香辣根"), u"[医] 西洋山萮菜, 香辣根");
  EXPECT_EQ(restoreSubstitutes(u"[化] 山\u2535酸"), u"[化] 山萮酸");
}

}  // namespace
