#include "dictionary/source/cleanup.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::u16string>;
using dictionary::headword;
using dictionary::translationLines;

TEST(Headword, IsTrimmedAndHasBlanksFolded) {
  EXPECT_EQ(headword(u"  data \t bank "), u"data bank");
  EXPECT_EQ(headword(u"it's"), u"it's");
  EXPECT_EQ(headword(u"2,4-D (acid)"), u"2,4-D (acid)");
}

TEST(Headword, RefusesWhatLookupsCannotFind) {
  for (const std::u16string word :
       {u"", u"   ", u"...", u"alligatoring厄", u"café", u"100%", u"o_O", u"a*b", u"compound \"S\"",
        u"a\\b", u"?-mark", u"R&amp;D", u"<sigh>"}) {
    EXPECT_FALSE(headword(word).has_value()) << word.size();
  }
  EXPECT_TRUE(headword(u"what for?").has_value());
  EXPECT_TRUE(headword(std::u16string(64, u'a')).has_value());
  EXPECT_FALSE(headword(std::u16string(65, u'a')).has_value());
}

TEST(TranslationLines, SplitsAtEveryKindOfLineBreak) {
  EXPECT_EQ(translationLines(u"n. 甲\\nv. 乙\\r\\na. 丙<br />丁<BR>戊"),
            (Lines{u"n. 甲", u"v. 乙", u"a. 丙", u"丁", u"戊"}));
}

TEST(TranslationLines, CleansEachLine) {
  EXPECT_EQ(translationLines(u"  [化]\t盐\u00A0酸\u3000 \u200B酸\uFEFF "),
            (Lines{u"[化] 盐 酸 酸"}));
  EXPECT_EQ(translationLines(u"\\n \\n"), Lines());
  EXPECT_EQ(translationLines(u"&beta;版, 8&frac12;英寸"), (Lines{u"β版, 8½英寸"}));
  EXPECT_EQ(translationLines(u"<i>甲</i>乙"), (Lines{u"甲乙"}));
  EXPECT_EQ(translationLines(u"<德> n. 甲"), (Lines{u"<德> n. 甲"}));
}

// "ICL | [计] 国际计算机-, 有限公司", "5'-, 3'-核苷酸" is no break
TEST(TranslationLines, JoinsWhatWasBroken) {
  EXPECT_EQ(translationLines(u"[计] 国际计算机-,  有限公司"), (Lines{u"[计] 国际计算机有限公司"}));
  EXPECT_EQ(translationLines(u"甲-, B; 5'-, 乙; 甲-"), (Lines{u"甲-, B; 5'-, 乙; 甲-"}));
}

TEST(TranslationLines, DropsCitations) {
  EXPECT_EQ(translationLines(u"打脚的\\n以上来源于：《某某词典》"), (Lines{u"打脚的"}));
}

// Lines like those of acetylsulfisoxazole and gantanol.
TEST(TranslationLines, RestoreSubstitutes) {
  EXPECT_EQ(translationLines(u"[化] 异\u252D唑\\n[医] 异\u2527唑"),
            (Lines{u"[化] 异噁唑", u"[医] 异噁唑"}));
}

TEST(TranslationLines, DecodesEntitiesBeforeItBreaksLines) {
  EXPECT_EQ(translationLines(u"甲&lt;br&gt;乙"), (Lines{u"甲", u"乙"}));
}

TEST(FoldBlanks, DeletesInvisibleCharacters) {
  EXPECT_EQ(dictionary::foldBlanks(u"co\u00ADop\u2060er\u200Ba\u200Fte\uFEFF"), u"cooperate");
  EXPECT_EQ(dictionary::foldBlanks(u"甲 \u00AD 乙"), u"甲 乙");
}

}  // namespace
