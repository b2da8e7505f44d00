#include "dictionary/translation/brackets.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using dictionary::withOptionalCharacters;

// "endothelioma dural | [医] 硬脑[脊]膜内皮瘤", "sumac | [医] 漆树[属植物]", "lytic mixture | [医]
// [植物性神经]阻滞合剂"
TEST(WithOptionalCharacters, DeletesTheBracketsAroundThem) {
  EXPECT_EQ(withOptionalCharacters(u"硬脑[脊]膜内皮瘤"), u"硬脑脊膜内皮瘤");
  EXPECT_EQ(withOptionalCharacters(u"漆树[属植物]"), u"漆树属植物");
  EXPECT_EQ(withOptionalCharacters(u"[植物性神经]阻滞合剂"), u"植物性神经阻滞合剂");
  EXPECT_EQ(withOptionalCharacters(u"印[度]防己[实](剧毒[的])"), u"印度防己实(剧毒[的])");
  EXPECT_EQ(withOptionalCharacters(u"消炎[剂]"), u"消炎剂");
}

// "halfan | [医]卤泛群[抗疟药]", "choanae | [医][拉] 〔单choana〕漏斗", "-ate |
// [医]〔后缀〕构成名词", "kangaroo rat | [医]鼠[产于北美]"
TEST(WithOptionalCharacters, LeavesNotesAlone) {
  for (const std::u16string_view text :
       {u"卤泛群[抗疟药]", u"[拉] 〔单choana〕漏斗", u"〔后缀〕构成名词", u"鼠[产于北美]",
        u"苯并[c]呋喃", u"沉淀硫酸钡[造影剂]", u"[中国生化学家黄新彦]黄氏法", u"甲[乙", u"甲[]"}) {
    EXPECT_EQ(withOptionalCharacters(text), text) << text.size();
  }
}

}  // namespace
