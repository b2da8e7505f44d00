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
// "Gliricola porcelli | [医] 海ā虱", "trigla | 鲂\uE248", "ssx | 磺胺异？唑"
TEST(RestoreSubstitutes, DependsOnTheNeighbours) {
  EXPECT_EQ(restoreSubstitutes(u"[医] \u00F2麻属, 枳\u0420属"), u"[医] 苘麻属, 枳椇属");
  EXPECT_EQ(restoreSubstitutes(u"鲂\uE248, 磺胺异？唑"), u"鲂鮄, 磺胺异噁唑");
  for (const std::u16string line :
       {u"\u00E0 ～ 绝妙地", u"[医] 海\u0101虱", u"[医] 甲\u0420属", u"\uE248", u"是吗？"}) {
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

// "triphenylstibine | [医] 三苯╃", "stibylene | [化] 亚╉基", "stibonic acid | [化] \uE2E4酸"
TEST(RestoreSubstitutes, KnowsStibineUnderEachOfItsNumbers) {
  EXPECT_EQ(restoreSubstitutes(u"[医] 三苯\u2543"), u"[医] 三苯䏲");
  EXPECT_EQ(restoreSubstitutes(u"[化] 亚\u2549基"), u"[化] 亚䏲基");
  EXPECT_EQ(restoreSubstitutes(u"[化] \uE2E4酸; 二烃基\uE2E4酸"), u"[化] 䏲酸; 二烃基䏲酸");
  EXPECT_EQ(restoreSubstitutes(u"[计] \uE2E4酸"), u"[计] \uE2E4酸");
}

// "occlusal rest | [医] й支托", "oyster shuckers' keratitis | [医] й壳角膜炎", "cusk-eel |
// [医]鼬？", "fraxinus | [医]？属", "catkin | [医] ì荑花序", "Amorphophallus konjac | [医] ǖǘ"
TEST(RestoreSubstitutes, KnowsFurtherCharactersByTheirNeighbours) {
  EXPECT_EQ(restoreSubstitutes(u"[医] 全\u0439支托"), u"[医] 全牙合支托");
  EXPECT_EQ(restoreSubstitutes(u"[医] \u0439壳角膜炎"), u"[医] \u0439壳角膜炎");
  EXPECT_EQ(restoreSubstitutes(u"[医]鼬？"), u"[医]鼬鳚");
  EXPECT_EQ(restoreSubstitutes(u"[医]？属"), u"[医]？属");
  EXPECT_EQ(restoreSubstitutes(u"[医] \u00EC荑花序"), u"[医] 葇荑花序");
  EXPECT_EQ(restoreSubstitutes(u"[医] \u01D6\u01D8"), u"[医] 蒟蒻");
}

// What is restored may not need to be restored again, and a text that another one begins with must
// not come before it.
TEST(Substitutes, AreAllReached) {
  const auto table = dictionary::substitutes();
  for (std::size_t i = 0; i < table.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k) {
      const bool sameBook =
          table[k].book == dictionary::Book::kAny || table[k].book == table[i].book;
      EXPECT_FALSE(sameBook && table[i].written.starts_with(table[k].written))
          << "substitute " << i << " comes after " << k;
    }
    EXPECT_NE(table[i].written, table[i].meant);
  }
}

}  // namespace
