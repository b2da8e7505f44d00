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

// "wachovia | n. （美国）美联银行，又称“瓦霍维亚银行”", "rock rabbit | n. 岩兔, 又称蹄兔",
// "clivers | n. [植]拉拉藤属植物,尤指猪殃殃", "lariam | [医]是一种抗疟药（含mefloquine
// hydrochloride）"
TEST(SplitExplanation, DropsLeadInsWithoutAColon) {
  EXPECT_EQ(dictionary::splitExplanation(u"又称“瓦霍维亚银行”").word, u"“瓦霍维亚银行”");
  EXPECT_EQ(dictionary::splitExplanation(u"又称蹄兔").word, u"蹄兔");
  EXPECT_EQ(dictionary::splitExplanation(u"是一种抗疟药（含甲）").word, u"一种抗疟药（含甲）");
  EXPECT_EQ(dictionary::splitExplanation(u"尤指猪殃殃").word, u"猪殃殃");
  for (const std::u16string_view word :
       {u"尤指", u"又称为...", u"俗称...", u"简称", u"亦称", u"是...的名手", u"是幸运的"}) {
    EXPECT_EQ(dictionary::splitExplanation(word).word, word);
  }
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

// "und | comb. 表示“水, 波浪”", "Mc- | 意为“麦当劳式的”", "alack | int. 表示“忧伤,惊恐”的感叹词"
TEST(QuotedMeaning, IsTheMeaningOfAWordElement) {
  EXPECT_EQ(dictionary::quotedMeaning(u"表示“水, 波浪”"), u"水, 波浪");
  EXPECT_EQ(dictionary::quotedMeaning(u"表示“薄片, 鳃瓣”之义"), u"薄片, 鳃瓣");
  EXPECT_EQ(dictionary::quotedMeaning(u"表示“分裂”：karyokinesis"), u"分裂");
  EXPECT_EQ(dictionary::quotedMeaning(u"表示\"腹(部)\""), u"腹(部)");
  EXPECT_EQ(dictionary::quotedMeaning(u"意为“麦当劳式的”"), u"麦当劳式的");
  EXPECT_EQ(dictionary::quotedMeaning(u"表示(含铁)之义"), u"含铁");
  EXPECT_EQ(dictionary::quotedMeaning(u"表示(含铁)"), u"");
  for (const std::u16string_view piece : {u"表示“忧伤, 惊恐”的感叹词", u"表示同意", u"表示",
                                          u"表示“水", u"表示“”", u"用以表示“水”", u"表示\"水"}) {
    EXPECT_EQ(dictionary::quotedMeaning(piece), u"") << piece.size();
  }
}

TEST(ElementMeaning, HasNeitherLeadInNorQuotationMarks) {
  EXPECT_EQ(dictionary::elementMeaning(u"表示食"), u"食");
  EXPECT_EQ(dictionary::elementMeaning(u"表示“喜…的”"), u"喜…的");
  EXPECT_EQ(dictionary::elementMeaning(u"表示“甲”和“乙”"), u"“甲”和“乙”");
  EXPECT_EQ(dictionary::elementMeaning(u"意为测定"), u"测定");
  EXPECT_EQ(dictionary::elementMeaning(u"用于表示体制"), u"体制");
  EXPECT_EQ(dictionary::elementMeaning(u"表示之义"), u"");
  EXPECT_EQ(dictionary::elementMeaning(u"表面"), u"表面");
}

// "Rousseau | Hanri 卢梭(1844-1910), 法国原始派风格画家", "boiardo |
// 博亚尔多，马泰奥·玛丽((1440？-1494) …", "assignat | n. 法国大革命时期(1789-1796)发行的纸币"
TEST(NameBeforeYears, IsTheNameOfAPerson) {
  EXPECT_EQ(dictionary::nameBeforeYears(u"Jean Jacques 卢梭(1712-1778)"), u"卢梭");
  EXPECT_EQ(dictionary::nameBeforeYears(u"梅尔巴(女子名) Nellie 内利梅抱(1861-1931)澳大利亚歌唱家"),
            u"内利梅抱");
  EXPECT_EQ(dictionary::nameBeforeYears(u"兰费朗克(1005?～1089)"), u"兰费朗克");
  for (const std::u16string_view piece :
       {u"法国大革命时期(1789-1796)发行的纸币", u"梅塔斯塔齐奥(1698)", u"射线(2700-3020埃)", u"甲",
        u"(1789-1794 年流行的)短上衣"}) {
    EXPECT_EQ(dictionary::nameBeforeYears(piece), u"") << piece.size();
  }
}

TEST(LifePosition, IsBehindTheFirstName) {
  EXPECT_EQ(dictionary::lifePosition(u"约翰((1906-1984) 英国诗人"), 2U);
  EXPECT_EQ(dictionary::lifePosition(u"卡里姆（（生于 1947） 美国篮球运动员"), 3U);
  EXPECT_EQ(dictionary::lifePosition(u"印锑（（秘鲁货币单位）"), std::u16string_view::npos);
  EXPECT_EQ(dictionary::lifePosition(u"约翰(1906-1984)"), std::u16string_view::npos);
}

// "-able | suf. 表示：“能…的,会…的”", "callowness | 意为：不成熟", "wild pink | 尤指：加罗林雪轮",
// "calodorant | [化] 指:煤气添臭剂", "dragon lady | …即：傲慢专横或残暴的妇女", "djokovic |
// 全名：Novak Djokovic…", "sharapova | 人名：莎拉波娃", "NDX | n. DOS文件扩展名:索引文件"
TEST(SplitExplanation, DropsEveryLeadIn) {
  for (const std::u16string_view leadIn :
       {u"表示", u"意为", u"尤指", u"指", u"意指", u"即", u"全名", u"人名", u"DOS文件扩展名"}) {
    for (const char16_t colon : std::u16string_view(u":：∶")) {
      const std::u16string piece = std::u16string(leadIn) + colon + u"跑";
      EXPECT_EQ(dictionary::splitExplanation(piece).word, u"跑") << leadIn.size();
    }
  }
  EXPECT_EQ(dictionary::splitExplanation(u"手指：跑").word, u"手指");
}

}  // namespace
