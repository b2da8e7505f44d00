#include "dictionary/source/source_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dictionary/source/markup.h"
#include "dictionary/source/stand_ins.h"

namespace {

using Lines = std::vector<std::u16string>;
using dictionary::headword;
using dictionary::translationLines;

TEST(Headword, IsTrimmedAndItsBlanksFolded) {
  EXPECT_EQ(headword(u"  data \t bank "), u"data bank");
  EXPECT_EQ(headword(u"it's"), u"it's");
  EXPECT_EQ(headword(u"2,4-D (acid)"), u"2,4-D (acid)");
}

TEST(Headword, MustBeSomethingThatCanBeLookedUp) {
  for (const std::u16string word :
       {u"", u"   ", u"...", u"alligatoring厄", u"café", u"100%", u"o_O", u"a*b", u"compound \"S\"",
        u"a\\b", u"?-mark", u"R&amp;D", u"<sigh>"}) {
    EXPECT_FALSE(headword(word).has_value()) << word.size();
  }
  EXPECT_TRUE(headword(u"what for?").has_value());
  EXPECT_TRUE(headword(std::u16string(64, u'a')).has_value());
  EXPECT_FALSE(headword(std::u16string(65, u'a')).has_value());
}

TEST(TranslationLines, EndAtEveryKindOfLineBreak) {
  EXPECT_EQ(translationLines(u"n. 甲\\nv. 乙\\r\\na. 丙<br />丁<BR>戊"),
            (Lines{u"n. 甲", u"v. 乙", u"a. 丙", u"丁", u"戊"}));
}

TEST(TranslationLines, AreCleaned) {
  EXPECT_EQ(translationLines(u"  [化]\t盐\u00A0酸\u3000 \u200B酸\uFEFF "),
            (Lines{u"[化] 盐 酸 酸"}));
  EXPECT_EQ(translationLines(u"\\n \\n"), Lines());
  EXPECT_EQ(translationLines(u"&beta;版, 8&frac12;英寸"), (Lines{u"β版, 8½英寸"}));
  EXPECT_EQ(translationLines(u"<i>甲</i>乙"), (Lines{u"甲乙"}));
  EXPECT_EQ(translationLines(u"<德> n. 甲"), (Lines{u"<德> n. 甲"}));
}

TEST(TranslationLines, LeaveOutWhereTheyWereTakenFrom) {
  EXPECT_EQ(translationLines(u"打脚的\\n以上来源于：《某某词典》"), (Lines{u"打脚的"}));
}

TEST(Markup, DecodesEntities) {
  EXPECT_EQ(dictionary::decodeEntities(u"a&amp;b &lt;&gt; &#946; &#x3B2;"), u"a&b <> β β");
  EXPECT_EQ(dictionary::decodeEntities(u"R&D; &;&#;&nothing;"), u"R\uFFFD &;\uFFFD\uFFFD");
  EXPECT_EQ(dictionary::decodeEntities(u"&#1;&#x10FFFF;&#xZ;&#99999999;"),
            u"\uFFFD\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(dictionary::decodeEntities(u"S&P；甲 & 乙;"), u"S&P；甲 & 乙;");
}

TEST(Markup, UndoesTheCodesOfSmallFigures) {
  EXPECT_EQ(dictionary::decodeEntities(u"维生素A&-{2}, B&-{12a}, C&-{10}H&-{13}NO&-{4}"),
            u"维生素A2, B12a, C10H13NO4");
  EXPECT_EQ(dictionary::decodeEntities(u"维生素H&+{-3}; =fog&{2}"), u"维生素H-3; =fog");
  EXPECT_EQ(dictionary::decodeEntities(u"A&-, &-{2, &{甲}"), u"A&-, &-{2, &{甲}");
  EXPECT_EQ(translationLines(u"[生化]吡哆醛,维生素B&-{6}"), (Lines{u"[生化]吡哆醛,维生素B6"}));
}

TEST(Markup, ANumberedCharacterIsLost) {
  EXPECT_EQ(dictionary::decodeEntities(u"内<&14&>动脉"), u"内\uFFFD动脉");
  EXPECT_EQ(dictionary::decodeEntities(u"<&&> <&14> <甲&14&> <&"), u"<&&> <&14> <甲&14&> <&");
}

TEST(Markup, IsSeen) {
  for (const std::u16string text : {u"维生素A&-{2}", u"H&+{-3}", u"fog&{2}", u"内<&14&>动脉",
                                    u"&beta;", u"<br />", u"甲\\n乙"}) {
    EXPECT_TRUE(dictionary::hasMarkup(text)) << text.size();
  }
  for (const std::u16string text : {u"A&B", u"<德>甲", u"{2}", u"甲 & 乙"}) {
    EXPECT_FALSE(dictionary::hasMarkup(text)) << text.size();
  }
}

TEST(StandIns, AreRepairedWhereTheyAreCertain) {
  EXPECT_EQ(dictionary::repairStandIns(u"异┭唑, 苯胺┹离子, │恶性黑瘤"),
            u"异噁唑, 苯胺鎓离子, 恶性黑瘤");
  EXPECT_EQ(dictionary::repairStandIns(u"ё弓状韧带, 聚щ花序, 类ж"), u"腘弓状韧带, 聚伞花序, 类䏡");
  EXPECT_EQ(dictionary::repairStandIns(u"邻Ж的"), u"邻牙合的");
  EXPECT_EQ(dictionary::repairStandIns(u"一六○五"), u"一六〇五");
  EXPECT_EQ(dictionary::repairStandIns(u"苯并\uE23C唑"), u"苯并噁唑");
}

TEST(StandIns, StayInsideCyrillicWords) {
  EXPECT_EQ(dictionary::repairStandIns(u"жизнь, ещё"), u"жизнь, ещё");
}

}  // namespace
