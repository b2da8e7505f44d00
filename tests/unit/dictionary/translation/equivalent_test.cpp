#include "dictionary/translation/equivalent.h"

#include <gtest/gtest.h>

#include <string>

#include "dictionary/translation/explanation.h"
#include "dictionary/translation/name_piece.h"

namespace {

using dictionary::PieceFault;
using dictionary::Subject;

std::u16string word(std::u16string_view piece, bool abbreviation = false) {
  return dictionary::makeEquivalent(piece, abbreviation).word;
}

PieceFault faultOf(std::u16string_view piece) {
  const dictionary::Equivalent equivalent = dictionary::makeEquivalent(piece, false);
  EXPECT_EQ(equivalent.word.empty(), equivalent.fault != PieceFault::kNone);
  return equivalent.fault;
}

TEST(Equivalent, LosesNotesDotsAndBlanks) {
  EXPECT_EQ(word(u"小脑[多发性]硬化"), u"小脑硬化");
  EXPECT_EQ(word(u"...发作"), u"发作");
  EXPECT_EQ(word(u"担任...主持人。"), u"担任…主持人");
  EXPECT_EQ(word(u"易腐败[堕落] 地"), u"易腐败地");
  EXPECT_EQ(word(u"维生素 B 复合物"), u"维生素B复合物");
  EXPECT_EQ(word(u"= 味精"), u"味精");
  EXPECT_EQ(word(u"立正！"), u"立正");
}

TEST(Equivalent, IsNarrowed) {
  EXPECT_EQ(word(u"关节Ｘ线照片"), u"关节X线照片");
  EXPECT_EQ(word(u"４'－二羟"), u"4′-二羟");
  EXPECT_EQ(word(u"威尔特•张伯伦"), u"威尔特·张伯伦");
  EXPECT_EQ(word(u"Ｃ 盐"), u"C盐");
}

TEST(Equivalent, KeepsOnlyQuotesThatItNeeds) {
  EXPECT_EQ(word(u"“黑药”"), u"黑药");
  EXPECT_EQ(word(u"《圣经》"), u"圣经");
  EXPECT_EQ(word(u"\"或\"操作"), u"“或”操作");
  EXPECT_EQ(word(u"'空中袭击者'战斗机"), u"“空中袭击者”战斗机");
  EXPECT_EQ(word(u"“thrill”的过去式"), u"thrill的过去式");
  EXPECT_EQ(word(u"《圣经》的修订本"), u"《圣经》的修订本");
}

TEST(Equivalent, LosesTheWordsThatAnAbbreviationStandsFor) {
  EXPECT_EQ(word(u"Armed Forces Records Center 军队档案中心"), u"军队档案中心");
  EXPECT_EQ(word(u"elbow 肘", true), u"肘");
  EXPECT_EQ(word(u"Ltd. <某国>东海公司", true), u"东海公司");
  EXPECT_EQ(word(u"Bachelor of Engineering Science工学士", true), u"工学士");
  EXPECT_EQ(word(u"商用货架产品Commercial off-the-shelf"), u"商用货架产品");
  EXPECT_EQ(word(u"-dled,-dling 逃走"), u"逃走");
}

TEST(Equivalent, KeepsForeignWordsThatBelongToIt) {
  EXPECT_EQ(word(u"Windows 字符集"), u"Windows字符集");
  EXPECT_EQ(word(u"X 射线", true), u"X射线");
  EXPECT_EQ(word(u"丘普Z变换"), u"丘普Z变换");
  EXPECT_EQ(word(u"pH 值", true), u"pH值");
  EXPECT_EQ(word(u"apple的复数"), u"apple的复数");
}

TEST(Equivalent, LosesTheHyphenBehindADeletedNote) {
  EXPECT_EQ(word(u"(Z)-丁烯酸丁酯"), u"丁烯酸丁酯");
  EXPECT_EQ(word(u"- 项目"), u"项目");
  EXPECT_EQ(word(u"2-(1-萘甲基)-咪唑啉"), u"2-(1-萘甲基)-咪唑啉");
}

TEST(Equivalent, NeedsHan) {
  EXPECT_EQ(faultOf(u"= bleak"), PieceFault::kNoHan);
  EXPECT_EQ(faultOf(u"(只有注释)"), PieceFault::kNoHan);
  EXPECT_EQ(faultOf(u""), PieceFault::kNoHan);
  EXPECT_EQ(faultOf(u"カツ"), PieceFault::kNoHan);
}

TEST(Equivalent, HasAtMostTwentyCharacters) {
  EXPECT_EQ(faultOf(std::u16string(20, u'长')), PieceFault::kNone);
  EXPECT_EQ(faultOf(std::u16string(21, u'长')), PieceFault::kTooLong);
}

TEST(Equivalent, HoldsNoLeftOverPunctuation) {
  for (const std::u16string_view piece :
       {u"甲(乙", u"乙)丙", u"甲“乙", u"10%溶液", u"甲_乙", u"甲*乙", u"甲\\乙", u"甲<乙",
        u"甲。乙", u"&j压", u"+体育馆", u"甲？乙", u"G～希腊人", u"--见-able", u"甲=乙",
        u"甲:乙"}) {
    EXPECT_EQ(faultOf(piece), PieceFault::kPunctuation) << std::string(piece.begin(), piece.end());
  }
  EXPECT_EQ(faultOf(u"750～1258年"), PieceFault::kNone);
  EXPECT_EQ(faultOf(u"输入/输出"), PieceFault::kNone);
}

TEST(Equivalent, HoldsNoCharacterThatStandsForALostOne) {
  for (const std::u16string_view piece :
       {u"酸┏", u"苯并\uE23D唑", u"苦ǒ菜", u"肉豆ê醑", u"木糖ㄌ", u"邻Ы的", u"白尾鹞\xD869\xDD22",
        u"贝母\uF91F", u"甲\u0001乙", u"甲\uFFFD", u"■的幼树"}) {
    EXPECT_EQ(faultOf(piece), PieceFault::kLostCharacter);
  }
  EXPECT_EQ(faultOf(u"Dagö岛"), PieceFault::kNone);
}

TEST(Equivalent, IsNoLabel) {
  EXPECT_EQ(faultOf(u"…的"), PieceFault::kLabel);
  EXPECT_EQ(faultOf(u"见 jilin"), PieceFault::kLabel);
  EXPECT_EQ(faultOf(u"人名"), PieceFault::kLabel);
  EXPECT_EQ(faultOf(u"地名"), PieceFault::kNone);
  EXPECT_EQ(faultOf(u"等等"), PieceFault::kNone);
  EXPECT_EQ(faultOf(u"看见"), PieceFault::kNone);
}

TEST(Explanation, IsCutOffBehindTheColon) {
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

TEST(NamePiece, EndsWhereItsOriginIsExplained) {
  EXPECT_EQ(dictionary::leadingName(u"巴克 Barker的变体"), u"巴克");
  EXPECT_EQ(dictionary::leadingName(u"塔隆来源于日耳曼语人名"), u"塔隆");
  EXPECT_EQ(dictionary::leadingName(u"斯托纳住所名称"), u"斯托纳");
  EXPECT_EQ(dictionary::leadingName(u"埃格德"), u"埃格德");
}

TEST(NamePiece, IsKnownByItsNote) {
  EXPECT_EQ(dictionary::namedByNote(u"鲍曼（姓氏）"), setOf(Subject::kPerson));
  EXPECT_EQ(dictionary::namedByNote(u"约翰(男子名)"), setOf(Subject::kPerson));
  EXPECT_EQ(dictionary::namedByNote(u"阿波普卡（美国地名）"), setOf(Subject::kPlace));
  EXPECT_EQ(dictionary::namedByNote(u"（用于地名）古的"), 0U);
  EXPECT_EQ(dictionary::namedByNote(u"苹果(水果)"), 0U);
}

TEST(NamePiece, MayAnnounceNames) {
  EXPECT_EQ(dictionary::announcedNames(u"(Luang)人名", false), setOf(Subject::kPerson));
  EXPECT_EQ(dictionary::announcedNames(u"(place-name 的复数)地名", false), 0U);
  EXPECT_EQ(dictionary::announcedNames(u"人名", true), setOf(Subject::kPerson));
  EXPECT_EQ(dictionary::announcedNames(u"姓氏", true), setOf(Subject::kPerson));
  EXPECT_EQ(dictionary::announcedNames(u"地名", true), setOf(Subject::kPlace));
  EXPECT_EQ(dictionary::announcedNames(u"地名", false), 0U);
  EXPECT_EQ(dictionary::announcedNames(u"地名(注)", false), 0U);
  EXPECT_EQ(dictionary::announcedNames(u"地名学", true), 0U);
  EXPECT_EQ(dictionary::announcedNames(u"", true), 0U);
}

}  // namespace
