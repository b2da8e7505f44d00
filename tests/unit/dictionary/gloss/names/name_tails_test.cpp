#include "dictionary/gloss/names/name_tails.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using dictionary::withoutAuthor;
using dictionary::withoutNameTail;

// "双城记 | A Tale of Two Cities by Charles Dickens", "丑小鸭 | "The Ugly Duckling" by Hans
// Christian Andersen", "巴山夜雨 | Evening Rain, 1980 movie about …", "歧路灯 | Lamp in the Side
// Street, novel by Qing dynasty writer Li Lüyuan", "卧虎藏龙 | Crouching Tiger, Hidden Dragon,
// movie by Ang Lee"
TEST(WithoutAuthor, CutsTitles) {
  EXPECT_EQ(withoutAuthor(u"A Tale of Two Cities by Charles Dickens"), u"A Tale of Two Cities");
  EXPECT_EQ(withoutAuthor(u"\"The Ugly Duckling\" by Hans Christian Andersen"),
            u"\"The Ugly Duckling\"");
  EXPECT_EQ(withoutAuthor(u"Evening Rain, 1980 movie about it"), u"Evening Rain");
  EXPECT_EQ(withoutAuthor(u"Lamp in the Side Street, novel by Qing dynasty writer Li Luyuan"),
            u"Lamp in the Side Street");
  EXPECT_EQ(withoutAuthor(u"Crouching Tiger, Hidden Dragon, movie by Ang Lee"),
            u"Crouching Tiger, Hidden Dragon");
}

// "柳毅传 | story of Liu Yi, Tang fantasy fiction by Li Chaowei …"
TEST(WithoutAuthor, CutsStories) {
  EXPECT_EQ(withoutAuthor(u"story of Liu Yi, Tang fantasy fiction by Li Chaowei"),
            u"story of Liu Yi");
}

// "大唐狄公案 | Three Murder Cases Solved by Judge Dee, 1949 novel by …", "黄鹤楼 | Tang poem by
// Cui Hao", "恩准 | approved by His (or Her) Majesty", "举贤良对策 | Treatise 134 BC by Han dynasty
// …"
TEST(WithoutAuthor, LeavesOtherTexts) {
  for (const std::u16string_view gloss :
       {u"Tang poem by Cui Hao", u"approved by His Majesty", u"Step by Step",
        u"Treatise 134 BC by Han dynasty philosopher", u"Principles Enunciated by Deng Xiaoping",
        u"Li Bai, Tang poet", u" by A", u"book, novel by Lao She"}) {
    EXPECT_EQ(withoutAuthor(gloss), gloss);
  }
  EXPECT_EQ(withoutAuthor(u"Three Murder Cases Solved by Judge Dee, 1949 novel by R.H. van Gulik"),
            u"Three Murder Cases Solved by Judge Dee");
}

// "小贝 | "Becks", nickname of British footballer …", "性恶论 | "human nature is evil", theory …"
TEST(WithoutNameTail, CutsBehindQuotationMarks) {
  EXPECT_EQ(withoutNameTail(u"\"Becks\", nickname of David Beckham"), u"\"Becks\"");
  EXPECT_EQ(withoutNameTail(u"\"human nature is evil\", theory of Xunzi"),
            u"\"human nature is evil\"");
  EXPECT_EQ(withoutNameTail(u"\"long\", \"short\""), u"\"long\", \"short\"");
  EXPECT_EQ(withoutNameTail(u"\"open, texts"), u"\"open, texts");
}

// "左宗棠鸡 | General Tso's chicken, a deep-fried chicken dish", "皇冠出版集团 | Crown publishing
// group, Hong Kong", "喀拉汗国 | Karakhan Dynasty of central Asia, 8th-10th century", "六环路 |
// Sixth ring road (Beijing), opened in 2008", "泰格·伍兹 | Eldrick "Tiger" Woods (1975-), American
// golfer", "范德瓦耳斯 | Johannes Diderik van der Waals (1837-1923), Dutch physicist"
TEST(WithoutNameTail, CutsLongerNames) {
  EXPECT_EQ(withoutNameTail(u"General Tso's chicken, a deep-fried dish"), u"General Tso's chicken");
  EXPECT_EQ(withoutNameTail(u"Crown publishing group, Hong Kong"), u"Crown publishing group");
  EXPECT_EQ(withoutNameTail(u"Karakhan dynasty of Asia, 8th-10th century"),
            u"Karakhan dynasty of Asia");
  EXPECT_EQ(withoutNameTail(u"Sixth ring road, opened in 2008"), u"Sixth ring road");
  EXPECT_EQ(withoutNameTail(u"Eldrick \"Tiger\" Woods, American golfer"),
            u"Eldrick \"Tiger\" Woods");
  EXPECT_EQ(withoutNameTail(u"Johannes Diderik van der Waals, Dutch physicist"),
            u"Johannes Diderik van der Waals");
}

// "雷公打豆腐… | the God of Thunder strikes bean curd, a bully picks the weakest person", "丹霞 |
// Mt Danxia in Shaoguan, Guangdong", "吾生也有涯，而知也无涯 | Life is short, learning is
// limitless"
TEST(WithoutNameTail, LeavesSentencesAndPlaces) {
  for (const std::u16string_view gloss :
       {u"God of Thunder strikes bean curd, a bully picks the weakest",
        u"Mt Danxia in Shaoguan, Guangdong", u"Life is short, learning is limitless",
        u"When in Rome, do as the Romans do", u"If you go there, a man comes"}) {
    EXPECT_EQ(withoutNameTail(gloss), gloss);
  }
}

}  // namespace
