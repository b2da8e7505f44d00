#include "dictionary/source/markup.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dictionary/source/cleanup.h"

namespace {

TEST(Markup, DecodesEntities) {
  EXPECT_EQ(dictionary::decodeEntities(u"a&amp;b &lt;&gt; &#946; &#x3B2;"), u"a&b <> β β");
  EXPECT_EQ(dictionary::decodeEntities(u"R&D; &;&#;&nothing;"), u"R\uFFFD &;\uFFFD\uFFFD");
  EXPECT_EQ(dictionary::decodeEntities(u"&#1;&#x10FFFF;&#xZ;&#99999999;"),
            u"\uFFFD\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(dictionary::decodeEntities(u"&#31;&#32;&#65535;&#65536;"), u"\uFFFD \uFFFF\uFFFD");
  EXPECT_EQ(dictionary::decodeEntities(u"S&P；甲 & 乙;"), u"S&P；甲 & 乙;");
}

TEST(Markup, DecodesSubscriptsAndSuperscripts) {
  EXPECT_EQ(dictionary::decodeEntities(u"维生素A&-{2}, B&-{12a}, C&-{10}H&-{13}NO&-{4}"),
            u"维生素A2, B12a, C10H13NO4");
  EXPECT_EQ(dictionary::decodeEntities(u"维生素H&+{-3}; =fog&{2}"), u"维生素H-3; =fog");
  EXPECT_EQ(dictionary::decodeEntities(u"A&-, &-{2, &{甲}"), u"A&-, &-{2, &{甲}");
  EXPECT_EQ(dictionary::translationLines(u"[生化]吡哆醛,维生素B&-{6}"),
            (std::vector<std::u16string>{u"[生化]吡哆醛,维生素B6"}));
}

TEST(Markup, ReplacesANumberedCharacterByUFffd) {
  EXPECT_EQ(dictionary::decodeEntities(u"内<&14&>动脉"), u"内\uFFFD动脉");
  EXPECT_EQ(dictionary::decodeEntities(u"<&&> <&14> <甲&14&> <&"), u"<&&> <&14> <甲&14&> <&");
}

// Koran "n. <<可兰经>>", C.O.D. "<<简明牛津词典>>", Hera "n. 赫拉(<<宙斯神之妻)"
TEST(Markup, MarksTitles) {
  EXPECT_EQ(dictionary::markTitles(u"n. <<可兰经>>"), u"n. 《可兰经》");
  EXPECT_EQ(dictionary::markTitles(u"<<申命记>>(<<旧约全书>>中的一卷)"),
            u"《申命记》(《旧约全书》中的一卷)");
  EXPECT_EQ(dictionary::markTitles(u"n. 赫拉(<<宙斯神之妻)"), u"n. 赫拉(<<宙斯神之妻)");
  EXPECT_EQ(dictionary::markTitles(u"<<>> <甲> <<乙> <<丙\\n丁>> <<<戊>>"),
            u"<<>> <甲> <<乙> <<丙\\n丁>> <《戊》");
  EXPECT_EQ(dictionary::translationLines(u"<<OED>>\\n[经] <<汉堡规则>>"),
            (std::vector<std::u16string>{u"《OED》", u"[经] 《汉堡规则》"}));
}

TEST(Markup, IsFoundByHasMarkup) {
  for (const std::u16string text : {u"维生素A&-{2}", u"H&+{-3}", u"fog&{2}", u"内<&14&>动脉",
                                    u"&beta;", u"<br />", u"甲\\n乙"}) {
    EXPECT_TRUE(dictionary::hasMarkup(text)) << text.size();
  }
  for (const std::u16string text : {u"A&B", u"<德>甲", u"{2}", u"甲 & 乙"}) {
    EXPECT_FALSE(dictionary::hasMarkup(text)) << text.size();
  }
}

// "etanercept | [医]依那西普<TNF-α拮抗剂，抗类风湿关节炎药>"
TEST(Markup, TakesOnlyAsciiBetweenAngleBracketsForATag) {
  const std::u16string note = u"[医]依那西普<TNF-α拮抗剂，抗类风湿关节炎药>";
  EXPECT_EQ(dictionary::breakLines(note), note);
  EXPECT_FALSE(dictionary::hasMarkup(note));
  EXPECT_EQ(dictionary::breakLines(u"甲<a<i>乙"), u"甲<a乙");
  EXPECT_EQ(dictionary::breakLines(u"甲<bread>乙<br2>丙"), u"甲乙\n丙");
}

}  // namespace
