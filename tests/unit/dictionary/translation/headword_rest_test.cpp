// Lines are those of the source.
#include "dictionary/translation/headword_rest.h"

#include <gtest/gtest.h>

#include "dictionary/translation/entry.h"

namespace {

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

}  // namespace
