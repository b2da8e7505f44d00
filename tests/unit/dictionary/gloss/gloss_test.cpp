#include "dictionary/gloss/gloss.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

using dictionary::Gloss;
using dictionary::GlossValue;
using dictionary::parseGloss;
using dictionary::Subject;
using dictionary::WordKind;
using Texts = std::vector<std::u16string>;

Texts texts(std::u16string_view gloss) {
  Texts result;
  for (const Gloss& one : parseGloss(gloss).glosses) result.push_back(one.english);
  return result;
}

/// The value of the gloss's only text.
GlossValue value(std::u16string_view gloss) {
  const std::vector<Gloss> glosses = parseGloss(gloss).glosses;
  EXPECT_EQ(glosses.size(), 1U);
  return glosses.empty() ? GlossValue::kLiteral : glosses[0].value;
}

// "同样 | same; equal; similar", "只有 | to expect (often …; never)", "3C | computers,
// communications, and consumer electronics"
TEST(ParseGloss, SplitsAtSemicolons) {
  EXPECT_EQ(texts(u"same; equal; similar"), (Texts{u"same", u"equal", u"similar"}));
  EXPECT_EQ(texts(u"to expect (often; never)"), (Texts{u"expect"}));
  EXPECT_EQ(texts(u"\"one; two\" game"), (Texts{u"one; two game"}));
}

// "病从口入 | Illness enters by the mouth (idiom). Mind what you eat!"
TEST(ParseGloss, SplitsAtASentenceBehindANote) {
  EXPECT_EQ(texts(u"Illness enters by the mouth (idiom). Mind what you eat!"),
            (Texts{u"Illness enters by the mouth", u"Mind what you eat"}));
}

// "回击 | to fight back; to return fire", "每日限价 | (finance) daily trading limit, the maximum …"
TEST(ParseGloss, GivesWordsAndSubjects) {
  const std::vector<Gloss> glosses = parseGloss(u"(law) to appeal; to sue (finance)").glosses;
  ASSERT_EQ(glosses.size(), 2U);
  EXPECT_EQ(glosses[0].words, 1U);
  EXPECT_EQ(glosses[0].subjects, setOf(Subject::kLaw));
  EXPECT_EQ(glosses[1].subjects, setOf(Subject::kLaw) | setOf(Subject::kEconomy));
  EXPECT_EQ(parseGloss(u"interval (music); gap").glosses[1].subjects, 0U);
  EXPECT_EQ(parseGloss(u"Yuci district of Jinzhong city 晉中市|晋中市[Jin4 zhong1 shi4], Shanxi")
                .glosses[0]
                .subjects,
            setOf(Subject::kPlace));
}

// "频宽 | (Tw) bandwidth", "菠薐 | old name for spinach", "鼢 | a kind of rat"
TEST(ParseGloss, ValuesTexts) {
  EXPECT_EQ(value(u"bandwidth"), GlossValue::kPair);
  EXPECT_EQ(value(u"to be on the very same"), GlossValue::kExplanation) << "five words";
  EXPECT_EQ(value(u"to be on the same"), GlossValue::kPair) << "four words";
  EXPECT_EQ(value(u"(Tw) bandwidth"), GlossValue::kUsage);
  EXPECT_EQ(value(u"old name for spinach"), GlossValue::kUsage);
  EXPECT_EQ(value(u"a kind of rat"), GlossValue::kExplanation);
  EXPECT_EQ(value(u"surname Li"), GlossValue::kSurname);
  EXPECT_EQ(value(u"two-character surname Dugu"), GlossValue::kSurname);
}

// "变本加厉 | lit. change to more severe (idiom); to become more intense (esp. of shortcoming)",
// "亮黄灯 | (lit.) to flash the yellow light", "飘 | (lit. and fig.) to drift"
TEST(ParseGloss, TellsLiteralMeanings) {
  const std::vector<Gloss> glosses =
      parseGloss(u"lit. change (idiom); to become more intense (esp. of shortcoming)").glosses;
  ASSERT_EQ(glosses.size(), 2U);
  EXPECT_EQ(glosses[0].value, GlossValue::kLiteral);
  EXPECT_EQ(glosses[1].english, u"become more intense");
  EXPECT_EQ(glosses[1].value, GlossValue::kPair);
  EXPECT_EQ(value(u"(lit.) to flash the light"), GlossValue::kLiteral);
  EXPECT_EQ(value(u"(lit. and fig.) to drift"), GlossValue::kPair);
  EXPECT_EQ(value(u"lit. and fig. to drift"), GlossValue::kPair);
  EXPECT_EQ(value(u"fig. to get rid of"), GlossValue::kPair);
}

// "美洲国家 | also known as the Asian Games", "沪江 | alternative name for Shanghai 上海[Shang4
// hai3]", "河清海晏 | the Yellow River is clear and the sea is calm"
TEST(ParseGloss, RemovesMarksBeforeTheMeaning) {
  EXPECT_EQ(texts(u"also known as the Asian Games"), (Texts{u"Asian Games"}));
  EXPECT_EQ(texts(u"alternative name for Shanghai 上海[Shang4 hai3]"), (Texts{u"Shanghai"}));
  EXPECT_EQ(texts(u"the Louvre, museum in Paris"), (Texts{u"Louvre"}));
  EXPECT_EQ(texts(u"the Four Truths, whose end is peace"), (Texts{u"Four Truths"}));
  EXPECT_EQ(texts(u"the Yellow River is clear"), (Texts{u"the Yellow River is clear"}));
}

// "原定 | originally planned", "特急 | especially urgent", "又名 | also known as", "不然 | or
// else", "族 | … by extension, social group"
TEST(ParseGloss, KeepsMarksThatAreTheMeaning) {
  for (const std::u16string_view gloss :
       {u"originally planned", u"especially urgent", u"also known as", u"or else"}) {
    EXPECT_EQ(texts(gloss), (Texts{std::u16string(gloss)}));
  }
  EXPECT_EQ(texts(u"originally a fort"), (Texts{u"fort"}));
  EXPECT_EQ(texts(u"by extension, social group"), (Texts{u"social group"}));
}

// "出尔反尔 | old: to reap the consequences of one's words (…); modern: to go back on one's word",
// "久仰 | honorific: I've long looked forward …", "迷惑龙 | former name: brontosaurus", "旧 |
// opposite: new 新", "循环论证 | Latin: petitio principii"
TEST(ParseGloss, ReadsWhatFollowsAColon) {
  EXPECT_EQ(texts(u"old: to reap; modern: to go back"), (Texts{u"reap", u"go back"}));
  EXPECT_EQ(value(u"honorific: I am honored"), GlossValue::kUsage);
  EXPECT_EQ(texts(u"former name: brontosaurus"), (Texts{u"brontosaurus"}));
  EXPECT_TRUE(texts(u"opposite: new 新").empty());
  EXPECT_TRUE(texts(u"Latin: petitio principii").empty());
}

// "算哪根葱 | who do (you) think (you) are", "古风 | a pre-Tang Dynasty genre of poetry aka
// 古體詩|古体诗[gu3 ti3 shi1]", "鸡犬升天 | lit., even his chickens and dogs will ascend to heaven
// with him"
TEST(ParseGloss, MakesNoPairOfABrokenSentence) {
  EXPECT_EQ(texts(u"who (you) are"), (Texts{u"who you are"}));
  EXPECT_EQ(value(u"who (you) are"), GlossValue::kExplanation);
  EXPECT_EQ(texts(u"a pre-Tang Dynasty genre of poetry aka 古體詩|古体诗[gu3 ti3 shi1]"),
            (Texts{u"pre-Tang Dynasty genre of poetry"}));
  EXPECT_EQ(value(u"lit., a dog"), GlossValue::kLiteral);
  EXPECT_EQ(texts(u"fig., their friends benefit"), (Texts{u"their friends benefit"}));
}

// "张三李四 | lit. Zhang Three and Li Four (idiom)/(fig.) any Tom, Dick or Harry", "千古罪人 |
// (idiom)"
TEST(ParseGloss, ReadsThePhrasesOfARecord) {
  using dictionary::marksPhrase;
  for (const std::u16string_view gloss :
       {u"lit. one day (idiom)", u"(idiom, from Mencius) to go", u"Resist (1950s slogan)"}) {
    EXPECT_TRUE(marksPhrase(gloss));
  }
  EXPECT_FALSE(marksPhrase(u"idiom"));
  EXPECT_FALSE(marksPhrase(u"to say (sth)"));
  EXPECT_EQ(parseGloss(u"(fig.) any Tom, Dick or Harry", WordKind::kPhrase).glosses.at(0).english,
            u"any Tom, Dick or Harry");
}

// "凌 | to insult or maltreat", "王 | king or monarch", "生死 | life or death"
TEST(ParseGloss, PartsTheMeaningsOfACharacter) {
  const std::vector<Gloss> glosses =
      parseGloss(u"to insult or maltreat", WordKind::kCharacter).glosses;
  ASSERT_EQ(glosses.size(), 2U);
  EXPECT_EQ(glosses[0].english, u"insult");
  EXPECT_EQ(glosses[1].english, u"maltreat");
  EXPECT_EQ(texts(u"life or death"), (Texts{u"life or death"}));
}

// "满天繁星 | lit. whole sky, a multitude of stars", "奔奔族 | lit. Rushing Clan, generation born
// …", "谪仙 | a genius (literally, an immortal …), an epithet for exceptional individuals"
TEST(ParseGloss, CutsNoLiteralMeaning) {
  EXPECT_EQ(texts(u"lit. whole sky, a multitude of stars"),
            (Texts{u"whole sky, a multitude of stars"}));
  EXPECT_EQ(texts(u"lit. Rushing Clan, generation born in 1985"), (Texts{u"Rushing Clan"}));
  EXPECT_EQ(texts(u"a genius (literally, an immortal), an epithet"), (Texts{u"genius"}));
}

// "FBI | Federal Bureau of Investigation (FBI)", "国立首尔大学 | Seoul National University SNU"
TEST(ParseGloss, AddsInitials) {
  EXPECT_EQ(texts(u"Federal Bureau of Investigation (FBI)"),
            (Texts{u"Federal Bureau of Investigation", u"FBI"}));
  EXPECT_EQ(texts(u"Seoul National University SNU"), (Texts{u"Seoul National University", u"SNU"}));
}

// "一步一趋 | see 亦步亦趨|亦步亦趋[yi4 bu4 yi4 qu1]", "官媒 | (abbr. for 官方媒體|官方媒体)"
TEST(ParseGloss, GivesReferences) {
  const dictionary::ParsedGloss see = parseGloss(u"see 亦步亦趨|亦步亦趋[yi4 bu4 yi4 qu1]");
  EXPECT_TRUE(see.glosses.empty());
  ASSERT_EQ(see.references.size(), 1U);
  EXPECT_EQ(see.references[0].simplified, u"亦步亦趋");
  EXPECT_EQ(parseGloss(u"(abbr. for 官方媒體|官方媒体)").references.size(), 1U);
  const dictionary::ParsedGloss taiwan = parseGloss(u"(Tw) variant of 屌[diao3]");
  ASSERT_EQ(taiwan.references.size(), 1U);
  EXPECT_TRUE(taiwan.references[0].usage);
}

// "獞 | old variant of 壯|壮, Zhuang ethnic group of Guangxi", "𫫇 | variant of 惡|恶[e4],
// used in names of chemical compounds"
TEST(ParseGloss, TakesTheMeaningThatAVariantTells) {
  const dictionary::ParsedGloss told = parseGloss(u"old variant of 壯|壮, Zhuang group");
  EXPECT_TRUE(told.references.empty());
  ASSERT_EQ(told.glosses.size(), 1U);
  EXPECT_EQ(told.glosses[0].english, u"Zhuang group");
  EXPECT_EQ(told.glosses[0].value, GlossValue::kUsage);
  EXPECT_EQ(parseGloss(u"variant of 惡|恶[e4], used in names").references.size(), 1U);
}

// "傈僳 | Lisu ethnic group of Yunnan", "仡佬族 | Gelao or Klau ethnic group of Guizhou", "回族 |
// Hui Islamic ethnic group living across China"
TEST(ParseGloss, GivesTheNamesOfPeoples) {
  EXPECT_EQ(texts(u"Lisu ethnic group of Yunnan"), (Texts{u"Lisu ethnic group", u"Lisu"}));
  EXPECT_EQ(texts(u"Gelao or Klau ethnic group of Guizhou"),
            (Texts{u"Gelao ethnic group", u"Gelao", u"Klau ethnic group", u"Klau"}));
  EXPECT_EQ(texts(u"Hui Islamic ethnic group living across China"),
            (Texts{u"Hui Islamic ethnic group"}));
}

// "骨都都 | (onom.) for plopping sound", "咕咚 | (onom.) for heavy things falling down"
TEST(ParseGloss, DescribesSounds) {
  EXPECT_EQ(texts(u"(onom.) for heavy things falling down"), (Texts{u"heavy things falling down"}));
  EXPECT_EQ(value(u"(onom.) for plopping sound"), GlossValue::kExplanation);
  EXPECT_EQ(value(u"(onom.) plop"), GlossValue::kPair);
}

// "孔明 | courtesy name of Zhuge Liang 諸葛亮|诸葛亮[Zhu1 ge3 Liang4]", "轲 | given name of
// Mencius", "⺮ | "bamboo" radical in Chinese characters (Kangxi radical 118)", "春秋左氏传 |
// usually called Zuo Zhuan", "钦奈 | formerly called Madras", "暖色 | esp. yellow, orange or red"
TEST(ParseGloss, ReadsWhatAWordIsANameFor) {
  EXPECT_EQ(texts(u"courtesy name of Zhuge Liang 諸葛亮|诸葛亮[Zhu1 ge3 Liang4]"),
            (Texts{u"Zhuge Liang"}));
  EXPECT_EQ(value(u"courtesy name of Zhuge Liang"), GlossValue::kUsage);
  EXPECT_EQ(parseGloss(u"given name of Mencius", WordKind::kCharacter).glosses.at(0).english,
            u"given name of Mencius");
  EXPECT_EQ(parseGloss(u"given name of Mencius", WordKind::kCharacter).glosses.at(0).value,
            GlossValue::kExplanation);
  EXPECT_EQ(parseGloss(u"a general term for plants", WordKind::kCharacter).glosses.at(0).english,
            u"plants");
  EXPECT_EQ(texts(u"\"bamboo\" radical in Chinese characters (Kangxi radical 118)"),
            (Texts{u"bamboo radical"}));
  EXPECT_EQ(texts(u"usually called Zuo Zhuan"), (Texts{u"Zuo Zhuan"}));
  EXPECT_EQ(texts(u"formerly called Madras"), (Texts{u"Madras"}));
  EXPECT_EQ(value(u"esp. yellow, orange or red"), GlossValue::kExplanation);
}

TEST(ParseGloss, GivesNothingOfAsidesAndMarks) {
  for (const std::u16string_view gloss :
       {u"", u"(phonetic)", u"(loanword)", u"Taiwan pr. [sao1]", u"CL:個|个[ge4]", u"radical 頁",
        u"(Tw)", u"; ;", u"()", u"classifier for ships", u"ancient name of a river", u"(horse)"}) {
    EXPECT_TRUE(texts(gloss).empty()) << std::string(gloss.begin(), gloss.end());
  }
}

}  // namespace
