#include "dictionary/translation/explanations.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

TEST(SplitExplanation, CutsOffWhatFollowsTheColon) {
  const dictionary::Explained explained = dictionary::splitExplanation(u"拜药：乳香的一种");
  EXPECT_EQ(explained.word, u"拜药");
  EXPECT_TRUE(explained.explains);
  EXPECT_EQ(dictionary::splitExplanation(u"表示：跑").word, u"跑");
  EXPECT_EQ(dictionary::splitExplanation(u"人名：莎拉").word, u"莎拉");
  EXPECT_EQ(dictionary::splitExplanation(u"道路：motordrome").word, u"道路");
  EXPECT_FALSE(dictionary::splitExplanation(u"道路：motordrome").explains);
  EXPECT_EQ(dictionary::splitExplanation(u"用3:1混合").word, u"用3:1混合");
  EXPECT_EQ(dictionary::splitExplanation(u"甲(注：乙)丙").word, u"甲(注：乙)丙");
}

// "fendi | n. 意大利服装名牌：芬迪", "lamborghini | 意大利世界名车：兰博基尼",
// "OVL | n. DOS文件扩展名:覆盖文件", "diacetic acid | [化] 双乙酸; 意指:二乙酰乙酸"
TEST(SplitExplanation, DropsLabelsBeforeTheEquivalent) {
  EXPECT_EQ(dictionary::splitExplanation(u"意大利服装名牌：芬迪").word, u"芬迪");
  EXPECT_FALSE(dictionary::splitExplanation(u"意大利服装名牌：芬迪").explains);
  EXPECT_EQ(dictionary::splitExplanation(u"意大利世界名车：兰博基尼").word, u"兰博基尼");
  EXPECT_EQ(dictionary::splitExplanation(u"DOS文件扩展名:覆盖文件").word, u"覆盖文件");
  EXPECT_EQ(dictionary::splitExplanation(u"意指:二乙酰乙酸").word, u"二乙酰乙酸");
}

// "henin | n. 海宁全名：Justine Henin 比利时网球名将", "saint-gobain | 圣戈班公司总部所在地：法国…"
TEST(SplitExplanation, DropsLabelsAfterAName) {
  EXPECT_EQ(dictionary::splitExplanation(u"海宁全名：Justine Henin").word, u"海宁");
  EXPECT_EQ(dictionary::splitExplanation(u"圣戈班公司总部所在地：法国").word, u"圣戈班公司");
  EXPECT_EQ(dictionary::splitExplanation(u"公司总部所在地").word, u"公司总部所在地");
}

TEST(DescribesCommand, KnowsTheLabels) {
  for (const std::u16string_view piece :
       {u"DOS内部命令:复制文件", u"DOS批处理命令", u"DOS设备驱动程序:设定打印机的页码",
        u"DOS命令:显示正确的驱动器符"}) {
    EXPECT_TRUE(dictionary::describesCommand(piece)) << piece.size();
  }
  for (const std::u16string_view piece :
       {u"DOS生成命令", u"DOS命令行开关项", u"DOS提示符", u"命令:复制文件", u""}) {
    EXPECT_FALSE(dictionary::describesCommand(piece)) << piece.size();
  }
}

}  // namespace
