// Lines are those of the source.
#include "dictionary/translation/foreign_words.h"

#include <gtest/gtest.h>

#include "dictionary/translation/entry.h"

namespace {

using dictionary::withoutForeignWords;
using dictionary::withoutHeadwordRest;

TEST(HeadwordRest, IsRemoved) {
  EXPECT_EQ(withoutHeadwordRest(u"reaction [化]维蒂希反应"), u"[化]维蒂希反应");
  EXPECT_EQ(withoutHeadwordRest(u"nut 巴西棕坚果"), u"巴西棕坚果");
  EXPECT_EQ(withoutHeadwordRest(u"tuna[鱼]黄鳍金枪鱼"), u"[鱼]黄鳍金枪鱼");
  EXPECT_EQ(withoutHeadwordRest(u"crow <英>[鸟]冠鸦"), u"<英>[鸟]冠鸦");
  EXPECT_EQ(withoutHeadwordRest(u"narcotics 麻醉药"), u"麻醉药");
}

TEST(HeadwordRest, OfAGeographicalNameIsRemoved) {
  EXPECT_EQ(withoutHeadwordRest(u"Sea阿拉弗拉海"), u"阿拉弗拉海");
  EXPECT_EQ(withoutHeadwordRest(u", Mount 麦金利山"), u"麦金利山");
  EXPECT_EQ(withoutHeadwordRest(u",Lake尼亚萨湖"), u"尼亚萨湖");
}

// "golan | Heights戈兰高地[叙利亚西南部]", "Highgate | Cemetery 海格特墓地"
TEST(HeadwordRest, OfAnotherNameIsRemoved) {
  EXPECT_EQ(withoutHeadwordRest(u"Heights戈兰高地"), u"戈兰高地");
  EXPECT_EQ(withoutHeadwordRest(u"Cemetery 海格特墓地"), u"海格特墓地");
}

// Devereux, Lully, Moluccas, Boleyn, "Kempis | , Thomas à即Thomas à Kempis", "neisserial | ,"
TEST(HeadwordRest, AfterACommaIsAllBeforeTheChineseText) {
  EXPECT_EQ(withoutHeadwordRest(u",Robert德弗罗(即Essex,Robert Devereux)"),
            u"德弗罗(即Essex,Robert Devereux)");
  EXPECT_EQ(withoutHeadwordRest(u",Raymond[re`mJN]卢利"), u"卢利");
  EXPECT_EQ(withoutHeadwordRest(u",Molucca[mEJ`lQkE]Islands摩鹿加群岛"), u"摩鹿加群岛");
  EXPECT_EQ(withoutHeadwordRest(u", Thomas à即Thomas à Kempis"), u"即Thomas à Kempis");
  EXPECT_EQ(withoutHeadwordRest(u", 奥地利神经病学家"), u"奥地利神经病学家");
  for (const std::u16string_view line : {u",", u", Mount", u",Mount β甲"}) {
    EXPECT_EQ(withoutHeadwordRest(line), line);
  }
}

TEST(HeadwordRest, IsNoPartOfAnEquivalent) {
  for (const std::u16string_view line :
       {u"Java服务端网页", u"whatis命令", u"Leo的所有格", u"shoe 的过去分词", u"adv 几乎",
        u"lovely（可爱的）的比较级形式", u"adj. 甲", u"oil", u"oil ", u"", u", ", u"pH 值",
        u"even if 即使", u"chavs 指的是一类年轻人", u"甲 乙"}) {
    EXPECT_EQ(withoutHeadwordRest(line), line);
  }
}

TEST(HeadwordRest, HidesNoSubjectTag) {
  const dictionary::TranslationLine line = dictionary::parseLine(u"reaction [化]维蒂希反应");
  ASSERT_EQ(line.pieces.size(), 1U);
  EXPECT_EQ(line.pieces[0].equivalent.word, u"维蒂希反应");
  EXPECT_EQ(line.pieces[0].subjects, setOf(dictionary::Subject::kChemistry));
}

TEST(HeadwordRest, BeforeAReferenceLeavesNothing) {
  const dictionary::TranslationLine line = dictionary::parseLine(u"Sea 见 Bohai Sea");
  ASSERT_EQ(line.pieces.size(), 1U);
  EXPECT_EQ(line.pieces[0].equivalent.word, u"");
}

// "orig | originally 最初；original 正本；origin 起源", "pence | pl. (非正式)copper便士", "karaya |
// gum刺梧桐树胶", "nol-pros | v. abbr.nolle prosequi<拉>[律]原告同意中止诉讼", "morello | n.
// morellos 〈植〉欧洲酸樱桃"
TEST(ForeignWords, InLowerCaseThatTheHeadwordDoesNotHaveAreRemoved) {
  EXPECT_EQ(withoutForeignWords(u"origin起源", u"orig"), u"起源");
  EXPECT_EQ(withoutForeignWords(u"copper便士", u"pence"), u"便士");
  EXPECT_EQ(withoutForeignWords(u"gum刺梧桐树胶", u"karaya"), u"刺梧桐树胶");
  EXPECT_EQ(withoutForeignWords(u"nolle prosequi原告同意中止诉讼", u"nol-pros"),
            u"原告同意中止诉讼");
  EXPECT_EQ(withoutForeignWords(u"morellos欧洲酸樱桃", u"morello"), u"欧洲酸樱桃");
  EXPECT_EQ(withoutForeignWords(u"Canal韦兰运河", u"Welland"), u"韦兰运河");
}

// "Tex. | Texas 美国德克萨斯州州名", "Th D | [缩][拉]Theologiae Doctor神学博士", "n-p-k |
// [医]nitrogen,Phosphorus,Kalium 氮、磷、钾"
TEST(ForeignWords, ThatTheHeadwordAbbreviatesAreRemoved) {
  EXPECT_EQ(withoutForeignWords(u"Texas美国德克萨斯州州名", u"Tex."), u"美国德克萨斯州州名");
  EXPECT_EQ(withoutForeignWords(u"Theologiae Doctor神学博士", u"Th D"), u"神学博士");
  EXPECT_EQ(withoutForeignWords(u"nitrogen,Phosphorus,Kalium氮", u"n-p-k"), u"氮");
  EXPECT_EQ(withoutForeignWords(u"BASIC程序的扩展名", u"bas"), u"BASIC程序的扩展名");
  EXPECT_EQ(withoutForeignWords(u"Java虚拟机", u"jvm"), u"Java虚拟机");
  EXPECT_EQ(withoutForeignWords(u"Andrew文件系统", u"AFS"), u"Andrew文件系统");
}

TEST(ForeignWords, ThatArePartOfTheEquivalentStay) {
  for (const std::u16string_view word :
       {u"X射线", u"DNA序列", u"T细胞", u"pH值", u"dna印迹法", u"unix操作系统", u"dl-莨菪胺",
        u"Punjab语", u"Novell公司", u"long-off或on", u"origin", u"起源", u"", u"2-甲基", u"-皮",
        u"tenofovir disoproxil fumarate制剂"}) {
    EXPECT_EQ(withoutForeignWords(word, u"headword"), word);
  }
  EXPECT_EQ(withoutForeignWords(u"qwerty键盘", u"QWERTY keyboard"), u"qwerty键盘");
  EXPECT_EQ(withoutForeignWords(u"modem限制器", u"modem eliminator"), u"modem限制器");
  EXPECT_EQ(withoutForeignWords(u"cox-2抑制剂", u"COX-2 inhibitor"), u"cox-2抑制剂");
}

// "bound | bind过去式和过去分词", "whosesoever | pron. whosoever所有格", "xmtr | n.  xmitter发射机
// 的缩写"
TEST(ForeignWords, ThatAreReferredToStay) {
  for (const std::u16string_view word :
       {u"shoe的过去分词", u"bind过去式和过去分词", u"whosoever所有格", u"xmitter发射机的缩写"}) {
    EXPECT_EQ(withoutForeignWords(word, u"xxx"), word);
  }
}

// "probie | 近义词newbie 、rookie、green hand、trainee、novice等", "plant bug | =capsid（衣壳） 或
// leaf bug（盲蝽）", "blanky | = blankety  比blankety 少用", "vater | radial and renal dysplasia桡"
TEST(ForeignWords, BeforeARemnantLeaveNothing) {
  EXPECT_EQ(withoutForeignWords(u"novice等", u"probie"), u"");
  EXPECT_EQ(withoutForeignWords(u"capsid或", u"plant bug"), u"");
  EXPECT_EQ(withoutForeignWords(u"blankety比blankety少用", u"blanky"), u"");
  EXPECT_EQ(withoutForeignWords(u"radial and renal dysplasia桡", u"vater"), u"");
}

}  // namespace
