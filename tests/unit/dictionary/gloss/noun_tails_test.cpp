#include "dictionary/gloss/noun_tails.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using dictionary::withoutNounTail;

// "酮糖 | ketose, monosaccharide containing ketone group", "塔帕斯 | tapas, small Spanish snacks",
// "三味线 | shamisen, three-stringed Japanese musical instrument", "巴豆 | croton (…), evergreen
// bush of Euphorbiaceae family", "真武 | Lord of profound heaven, major Daoist deity", "鲲鹏 | kun
// … and peng …, mythological beasts", "龙脉 | dragon's vein, terrain that looks like a dragon"
TEST(WithoutNounTail, CutsBeforeTheKind) {
  EXPECT_EQ(withoutNounTail(u"ketose, monosaccharide containing ketone group"), u"ketose");
  EXPECT_EQ(withoutNounTail(u"tapas, small Spanish snacks"), u"tapas");
  EXPECT_EQ(withoutNounTail(u"shamisen, three-stringed Japanese musical instrument"), u"shamisen");
  EXPECT_EQ(withoutNounTail(u"croton, evergreen bush of Euphorbiaceae family"), u"croton");
  EXPECT_EQ(withoutNounTail(u"Lord of profound heaven, major Daoist deity"),
            u"Lord of profound heaven");
  EXPECT_EQ(withoutNounTail(u"kun and peng, mythological beasts"), u"kun and peng");
  EXPECT_EQ(withoutNounTail(u"dragon's vein, terrain that looks like it"), u"dragon's vein");
}

// "侯 | marquis, second of the five orders …", "内参 | restricted document, available only to …",
// "听小骨 | three ossicles, acting as levers …", "大阿姨 | auntie, eldest of sisters …", "山水诗 |
// shanshui poetry, genre of Classical Chinese poetry", "田湾 | Tianwan in Lianyungang …, site of
// large nuclear power plant", "药水 | Yaksu in North Korea, near the border …"
TEST(WithoutNounTail, CutsBeforeAMarker) {
  EXPECT_EQ(withoutNounTail(u"marquis, second of the five orders"), u"marquis");
  EXPECT_EQ(withoutNounTail(u"restricted document, available only to some"),
            u"restricted document");
  EXPECT_EQ(withoutNounTail(u"three ossicles, acting as levers"), u"three ossicles");
  EXPECT_EQ(withoutNounTail(u"auntie, eldest of sisters"), u"auntie");
  EXPECT_EQ(withoutNounTail(u"shanshui poetry, genre of poetry"), u"shanshui poetry");
  EXPECT_EQ(withoutNounTail(u"Tianwan in Lianyungang, site of a plant"), u"Tianwan");
  EXPECT_EQ(withoutNounTail(u"Yaksu in North Korea, near the border"), u"Yaksu");
}

// "荧惑星 | Mars in traditional Chinese astronomy", "芍药 | peony used in TCM", "卒 | pawn in
// Chinese chess", "信佛 | to believe in Buddhism"
TEST(WithoutNounTail, CutsTheField) {
  EXPECT_EQ(withoutNounTail(u"Mars in traditional Chinese astronomy"), u"Mars");
  EXPECT_EQ(withoutNounTail(u"peony used in TCM"), u"peony");
  EXPECT_EQ(withoutNounTail(u"pawn in Chinese chess"), u"pawn");
  EXPECT_EQ(withoutNounTail(u"to believe in Buddhism"), u"to believe in Buddhism");
}

// "珍珠翡翠白玉汤 | cabbage, rice and tofu soup", "软呢 | soft, pliable wool fabric", "听说读写 |
// listening, speaking, reading and writing", "逃窜无踪 | to disperse and flee, leaving no trace",
// "猪精 | … a person who, like a pig, is fat …"
TEST(WithoutNounTail, LeavesListsAndAdjectives) {
  for (const std::u16string_view gloss :
       {u"cabbage, rice and tofu soup", u"soft, pliable wool fabric",
        u"listening, speaking, reading and writing", u"to disperse, leaving no trace",
        u"a person who, like a pig, is fat", u"in music, instrument of wood",
        u"one of the five or six words, instrument of speech", u"oats", u"Mars"}) {
    EXPECT_EQ(withoutNounTail(gloss), gloss);
  }
}

}  // namespace
