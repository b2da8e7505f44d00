#include "dictionary/translation/equivalent.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using dictionary::PieceFault;

std::u16string word(std::u16string_view piece, bool abbreviation = false) {
  return dictionary::makeEquivalent(piece, abbreviation).word;
}

PieceFault faultOf(std::u16string_view piece) {
  const dictionary::Equivalent equivalent = dictionary::makeEquivalent(piece, false);
  EXPECT_EQ(equivalent.word.empty(), equivalent.fault != PieceFault::kNone);
  return equivalent.fault;
}

TEST(MakeEquivalent, RemovesNotesDotsAndBlanks) {
  EXPECT_EQ(word(u"小脑[多发性]硬化"), u"小脑硬化");
  EXPECT_EQ(word(u"...发作"), u"发作");
  EXPECT_EQ(word(u"担任...主持人。"), u"担任…主持人");
  EXPECT_EQ(word(u"易腐败[堕落] 地"), u"易腐败地");
  EXPECT_EQ(word(u"维生素 B 复合物"), u"维生素B复合物");
  EXPECT_EQ(word(u"= 味精"), u"味精");
  EXPECT_EQ(word(u"立正！"), u"立正");
}

TEST(MakeEquivalent, NarrowsWideForms) {
  EXPECT_EQ(word(u"关节Ｘ线照片"), u"关节X线照片");
  EXPECT_EQ(word(u"４'－二羟"), u"4′-二羟");
  EXPECT_EQ(word(u"威尔特•张伯伦"), u"威尔特·张伯伦");
  EXPECT_EQ(word(u"Ｃ 盐"), u"C盐");
}

TEST(MakeEquivalent, RemovesOuterQuotationMarks) {
  EXPECT_EQ(word(u"“黑药”"), u"黑药");
  EXPECT_EQ(word(u"《圣经》"), u"圣经");
  EXPECT_EQ(word(u"\"或\"操作"), u"“或”操作");
  EXPECT_EQ(word(u"'空中袭击者'战斗机"), u"“空中袭击者”战斗机");
  EXPECT_EQ(word(u"“thrill”的过去式"), u"thrill的过去式");
  EXPECT_EQ(word(u"《圣经》的修订本"), u"《圣经》的修订本");
}

TEST(MakeEquivalent, RemovesTheExpansionOfAnAbbreviation) {
  EXPECT_EQ(word(u"Armed Forces Records Center 军队档案中心"), u"军队档案中心");
  EXPECT_EQ(word(u"elbow 肘", true), u"肘");
  EXPECT_EQ(word(u"Ltd. <某国>东海公司", true), u"东海公司");
  EXPECT_EQ(word(u"Bachelor of Engineering Science工学士", true), u"工学士");
  EXPECT_EQ(word(u"商用货架产品Commercial off-the-shelf"), u"商用货架产品");
  EXPECT_EQ(word(u"-dled,-dling 逃走"), u"逃走");
}

TEST(MakeEquivalent, KeepsForeignWordsInsideTheEquivalent) {
  EXPECT_EQ(word(u"Windows 字符集"), u"Windows字符集");
  EXPECT_EQ(word(u"X 射线", true), u"X射线");
  EXPECT_EQ(word(u"丘普Z变换"), u"丘普Z变换");
  EXPECT_EQ(word(u"pH 值", true), u"pH值");
  EXPECT_EQ(word(u"apple的复数"), u"apple的复数");
}

TEST(MakeEquivalent, RemovesTheHyphenAfterADeletedNote) {
  EXPECT_EQ(word(u"(Z)-丁烯酸丁酯"), u"丁烯酸丁酯");
  EXPECT_EQ(word(u"- 项目"), u"项目");
  EXPECT_EQ(word(u"2-(1-萘甲基)-咪唑啉"), u"2-(1-萘甲基)-咪唑啉");
}

// "cuti | [医]-皮", "brassidic acid | [化] 巴西烯酸; 反芜酸; (Z)-Δ13-廿二碳烯酸"
TEST(MakeEquivalent, RemovesTheHyphenOfAWordElement) {
  EXPECT_EQ(word(u"-皮"), u"皮");
  EXPECT_EQ(word(u"(Z)-Δ13-廿二碳烯酸"), u"Δ13-廿二碳烯酸");
  EXPECT_EQ(faultOf(u"-"), PieceFault::kNoHan);
}

// "allotransplanted | vt. 同种异基因个体移植 —／，æ-ləu'trænsplɑ:nt；-plænt／", "durno | [人名]
// 杜尔诺/////"
TEST(MakeEquivalent, RemovesMarksAtTheEnd) {
  EXPECT_EQ(word(u"同种异基因个体移植 —／"), u"同种异基因个体移植");
  EXPECT_EQ(word(u"杜尔诺/////"), u"杜尔诺");
}

// "Euxine Sea | Black Sea 的古名", "retrodden | v retread 的过去分词", "esses | ess [esse] 的复数",
// "begorra | int. by God! 的爱尔兰形式"
TEST(MakeEquivalent, KeepsTheWordThatAFormRefersTo) {
  EXPECT_EQ(word(u"Black Sea 的古名"), u"Black Sea的古名");
  EXPECT_EQ(word(u"v retread 的过去分词"), u"retread的过去分词");
  EXPECT_EQ(word(u"ess [esse] 的复数"), u"ess的复数");
  EXPECT_EQ(faultOf(u"[ similarity ]的复数形式"), PieceFault::kLabel);
  EXPECT_EQ(faultOf(u"的爱尔兰形式"), PieceFault::kLabel);
  EXPECT_EQ(word(u"的黎波里"), u"的黎波里");
  EXPECT_EQ(faultOf(u"dragon lady 的意思是"), PieceFault::kLabel);
  EXPECT_EQ(word(u"我的意思是"), u"我的意思是");
}

TEST(MakeEquivalent, RefusesTextWithoutHan) {
  EXPECT_EQ(faultOf(u"= bleak"), PieceFault::kNoHan);
  EXPECT_EQ(faultOf(u"(只有注释)"), PieceFault::kNoHan);
  EXPECT_EQ(faultOf(u""), PieceFault::kNoHan);
  EXPECT_EQ(faultOf(u"カツ"), PieceFault::kNoHan);
}

// "misunderstood | misunderstand的过去式和过去分词", "POWERPC | n.
// IBM和Apple公司联合生产的个人台式机", "YWCAs | Young Women's Christian Association 基督教女青年会"
TEST(MakeEquivalent, RefusesMoreThanTwentyHanCharacters) {
  EXPECT_EQ(faultOf(std::u16string(20, u'长')), PieceFault::kNone);
  EXPECT_EQ(faultOf(std::u16string(21, u'长')), PieceFault::kTooLong);
  EXPECT_EQ(word(u"misunderstand的过去式和过去分词"), u"misunderstand的过去式和过去分词");
  EXPECT_EQ(word(u"IBM和Apple公司联合生产的个人台式机"), u"IBM和Apple公司联合生产的个人台式机");
  EXPECT_EQ(word(u"Young Women's Christian Association 基督教女青年会"), u"基督教女青年会");
  EXPECT_EQ(faultOf(std::u16string(39, u'a') + u"长"), PieceFault::kNone);
  EXPECT_EQ(faultOf(std::u16string(40, u'a') + u"长"), PieceFault::kTooLong);
}

TEST(MakeEquivalent, ReturnsAnExplanationOfUpToThirtyHanCharacters) {
  const auto explanation = [](std::size_t length) {
    return dictionary::makeEquivalent(std::u16string(length, u'长'), false).explanation.size();
  };
  EXPECT_EQ(explanation(20), 0U);
  EXPECT_EQ(explanation(21), 21U);
  EXPECT_EQ(explanation(30), 30U);
  EXPECT_EQ(explanation(31), 0U);
}

TEST(MakeEquivalent, RefusesPunctuation) {
  for (const std::u16string_view piece :
       {u"甲“乙", u"10%溶液", u"甲_乙", u"甲*乙", u"甲\\乙", u"甲<乙", u"甲。乙", u"&j压",
        u"+1法师", u"G～希腊人", u"--见-able", u"甲=乙", u"甲:乙"}) {
    EXPECT_EQ(faultOf(piece), PieceFault::kPunctuation) << std::string(piece.begin(), piece.end());
  }
  EXPECT_EQ(faultOf(u"750～1258年"), PieceFault::kNone);
  EXPECT_EQ(faultOf(u"输入/输出"), PieceFault::kNone);
}

// "gym | n. +体育馆, 体育训练", "armed | [法] 武装的, 持械的, "F带武器的", "hashed |
// （尤指电话上的）#号", Shavian, "coagency | n. "合作机构, 协作机构"
TEST(MakeEquivalent, RemovesAStrayMarkBeforeChineseText) {
  EXPECT_EQ(word(u"+体育馆"), u"体育馆");
  EXPECT_EQ(word(u"\"F带武器的"), u"带武器的");
  EXPECT_EQ(word(u"\"合作机构"), u"合作机构");
  EXPECT_EQ(word(u"```萧伯纳(风格,作品)的"), u"萧伯纳的");
  EXPECT_EQ(faultOf(u"（尤指电话上的）#号"), PieceFault::kPunctuation);
  EXPECT_EQ(word(u"\"或\"操作"), u"“或”操作");
}

TEST(MakeEquivalent, RefusesAQuestionMarkForALostCharacter) {
  EXPECT_EQ(faultOf(u"苯？唑"), PieceFault::kLostCharacter);
  EXPECT_EQ(faultOf(u"树？"), PieceFault::kLostCharacter);
  EXPECT_EQ(word(u"好吗?"), u"好吗");
}

TEST(MakeEquivalent, RefusesSubstitutesForLostCharacters) {
  for (const std::u16string_view piece :
       {u"酸┏", u"苯并\uE23D唑", u"苦ǒ菜", u"肉豆ê醑", u"木糖ㄌ", u"邻Ы的", u"白尾鹞\xD869\xDD22",
        u"贝母\uF91F", u"甲\u0001乙", u"甲\uFFFD", u"■的幼树"}) {
    EXPECT_EQ(faultOf(piece), PieceFault::kLostCharacter);
  }
  EXPECT_EQ(faultOf(u"Dagö岛"), PieceFault::kNone);
}

TEST(MakeEquivalent, RefusesLabels) {
  EXPECT_EQ(faultOf(u"…的"), PieceFault::kLabel);
  EXPECT_EQ(faultOf(u"见 jilin"), PieceFault::kLabel);
  for (const std::u16string_view label : {u"人名", u"亦作", u"又作", u"略作"}) {
    EXPECT_EQ(faultOf(label), PieceFault::kLabel);
  }
  EXPECT_EQ(faultOf(u"地名"), PieceFault::kNone);
  EXPECT_EQ(faultOf(u"等等"), PieceFault::kNone);
  EXPECT_EQ(faultOf(u"看见"), PieceFault::kNone);
}

// "shovels | n. …; 推土机、挖土机等的)铲", "Broome | n. 布鲁姆（地名））", "concedes | v. …;
// 承认(比赛、 选举等失败", "banya | 巴尼亚（地名）（保加利亚"
TEST(MakeEquivalent, ReadsTheTextBesideABracketWithoutCounterpart) {
  EXPECT_EQ(word(u"挖土机等的)铲"), u"铲");
  EXPECT_EQ(word(u"布鲁姆（地名））"), u"布鲁姆");
  EXPECT_EQ(word(u"承认(比赛"), u"承认");
  EXPECT_EQ(word(u"巴尼亚（地名）（保加利亚"), u"巴尼亚");
  EXPECT_EQ(word(u"强制推销("), u"强制推销");
  EXPECT_EQ(faultOf(u"(比赛"), PieceFault::kPunctuation);
  EXPECT_EQ(faultOf(u"甲)乙)丙"), PieceFault::kPunctuation);
}

// "swing state | n. 摇摆州; …; 指的是, 在总统大选中，…", "arounds | adv. 周围；尤指；在周围"
TEST(MakeEquivalent, RefusesTheBeginningOfASentence) {
  EXPECT_EQ(faultOf(u"指的是"), PieceFault::kLabel);
  EXPECT_EQ(faultOf(u"尤指"), PieceFault::kLabel);
  EXPECT_EQ(faultOf(u"yahoo的意思是各种野蛮"), PieceFault::kLabel);
  EXPECT_EQ(word(u"误解某人的意思"), u"误解某人的意思");
  EXPECT_EQ(faultOf(u"“爱情、自由”的庆祝"), PieceFault::kPunctuation);
  EXPECT_EQ(word(u"wit的第1、3人称单数现在式"), u"wit的第1,3人称单数现在式");
}

// "a gross medley of... | ...的大杂烩", "headlights | n. （汽车等）的前灯( headlight的复数形式 )"
TEST(MakeEquivalent, RemovesTheParticleThatATrimmedEllipsisOrANoteLeaves) {
  EXPECT_EQ(word(u"...的大杂烩"), u"大杂烩");
  EXPECT_EQ(word(u"(汽车等)的前灯"), u"前灯");
  EXPECT_EQ(word(u"的确"), u"的确");
  EXPECT_EQ(word(u"的里雅斯特湾"), u"的里雅斯特湾");
  EXPECT_EQ(faultOf(u"...的"), PieceFault::kLabel);
  EXPECT_EQ(faultOf(u"的复数"), PieceFault::kLabel);
}

// "synthetic C10-16 aliphatic alcohols | [化] 合成C10~16脂肪醇", "absolutizing | vt. 使……绝对化",
// "feto- | [医]胎儿-", "Bladan | 一六○五", "pott | n. 375×312mm纸张"
TEST(MakeEquivalent, WritesEachMarkInOneWay) {
  EXPECT_EQ(word(u"合成C10~16脂肪醇"), u"合成C10～16脂肪醇");
  EXPECT_EQ(word(u"使……绝对化"), u"使…绝对化");
  EXPECT_EQ(word(u"使......绝对化"), u"使…绝对化");
  EXPECT_EQ(word(u"胎儿-"), u"胎儿");
  EXPECT_EQ(word(u"一六〇五"), u"一六〇五");
  EXPECT_EQ(word(u"375×312mm纸张"), u"375×312mm纸张");
}

// "common lynx | [网络] 常见的ly x"
TEST(MakeEquivalent, RemovesATailOfMoreThanFourSmallLetters) {
  EXPECT_EQ(word(u"常见的ly xz"), u"常见的ly xz");
  EXPECT_EQ(word(u"常见的ly xyz"), u"常见的");
  EXPECT_EQ(word(u"常见的lyxyz"), u"常见的lyxyz") << "one word";
}

// "NCSA | ( NATIONAL … APPLICATIONS 的缩写。…)", "ifan | [男子名] 伊凡 John的威尔士语形式",
// "esses | ess [esse] 的复数", "badder | a. 的非正式写法", "retrodden | v retread 的过去分词"
TEST(MakeEquivalent, RefusesAFormWithoutItsWord) {
  for (const std::u16string_view form :
       {u"的简写", u"的缩写", u"的变形", u"的变体", u"的复数", u"的威尔士语形式", u"的过去分词",
        u"的现在分词", u"的过去式", u"的非正式写法"}) {
    EXPECT_EQ(faultOf(form), PieceFault::kLabel) << std::string(form.begin(), form.end());
  }
}

}  // namespace
