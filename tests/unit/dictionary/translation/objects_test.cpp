// Translations are those of the source.
#include "dictionary/translation/brackets.h"

#include <gtest/gtest.h>

#include "dictionary/translation/equivalent.h"

namespace {

using dictionary::withObjects;

TEST(Objects, OfPrepositionsBecomeEllipses) {
  EXPECT_EQ(withObjects(u"把(乐曲)分成短句"), u"把…分成短句");
  EXPECT_EQ(withObjects(u"把（肉）捶得很软"), u"把…捶得很软");
  EXPECT_EQ(withObjects(u"对( 矿石) 进行预处理"), u"对… 进行预处理");
  EXPECT_EQ(withObjects(u"将（工业、工人等）自集中点分散"), u"将…自集中点分散");
  EXPECT_EQ(withObjects(u"与(录好的话语、声音或嗓音等)对口型"), u"与…对口型");
}

TEST(Objects, AreNoOptionalCharactersAndNoNotes) {
  EXPECT_EQ(withObjects(u"向(创)伤性"), u"向(创)伤性");
  EXPECT_EQ(withObjects(u"跟(骨)的"), u"跟(骨)的");
  EXPECT_EQ(withObjects(u"从中(央)来"), u"从中(央)来");
  EXPECT_EQ(withObjects(u"对(下棋用语)"), u"对(下棋用语)");
  EXPECT_EQ(withObjects(u"对(某"), u"对(某");
}

TEST(Objects, ThatArePlaceholdersLoseTheirBrackets) {
  EXPECT_EQ(withObjects(u"合(某人)的口味"), u"合某人的口味");
  EXPECT_EQ(withObjects(u"开脱(某人)的罪责"), u"开脱某人的罪责");
  EXPECT_EQ(withObjects(u"成为（某事物）的缩影"), u"成为某事物的缩影");
  EXPECT_EQ(withObjects(u"向(某人)控诉(某事)"), u"向某人控诉某事");
  EXPECT_EQ(withObjects(u"使某人(在某处)高兴"), u"使某人(在某处)高兴");
}

TEST(Objects, AtTheEndBecomeEllipsesWhereTheTextNeedsThem) {
  EXPECT_EQ(withObjects(u"将（财物等）传给（后人）"), u"将…传给…");
  EXPECT_EQ(withObjects(u"减轻(某人的)(负担)"), u"减轻(某人的)(负担)");
  EXPECT_EQ(withObjects(u"用掌拍打（某人）的（某部位）"), u"用掌拍打某人的某部位");
  EXPECT_EQ(withObjects(u"抢劫(某人)的(财物)"), u"抢劫某人的…");
  EXPECT_EQ(withObjects(u"对（某人）施魔法（故事）"), u"对某人施魔法（故事）");
}

TEST(Objects, ThatArePlaceholdersStayNotesWhereNothingIsMissing) {
  EXPECT_EQ(withObjects(u"使（某人）高兴"), u"使（某人）高兴");
  EXPECT_EQ(withObjects(u"欺骗(某人)"), u"欺骗(某人)");
  EXPECT_EQ(withObjects(u"(某人)去世"), u"(某人)去世");
}

TEST(Objects, ArePartOfAnEquivalent) {
  EXPECT_EQ(dictionary::makeEquivalent(u"投(某人)之好", false).word, u"投某人之好");
  EXPECT_EQ(dictionary::makeEquivalent(u"对( 矿石) 进行预处理", false).word, u"对…进行预处理");
}

}  // namespace
