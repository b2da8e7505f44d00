#include "dictionary/translation/line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dictionary/source/markup.h"

namespace {

using dictionary::parseLine;
using dictionary::Piece;
using dictionary::Subject;
using dictionary::subjectText;
using Texts = std::vector<std::u16string>;

/// The Chinese headwords of the line.
Texts words(std::u16string_view line) {
  Texts result;
  for (const Piece& piece : parseLine(line).pieces) {
    if (!piece.equivalent.word.empty()) result.push_back(piece.equivalent.word);
  }
  return result;
}

std::u16string text(std::u16string_view line, Subject subject) {
  return subjectText(parseLine(line), subject);
}

TEST(ParseLine, SkipsStrayMarksBeforeAPartOfSpeech) {
  EXPECT_EQ(words(u"a. [通常作表语], adv. 在晕厥中(的)"), (Texts{u"在晕厥中"}));
  EXPECT_EQ(words(u"[鱼]Ⅰ adj.总鳃类的"), (Texts{u"总鳃类的"}));
  EXPECT_EQ(words(u"n<古>.乡下人, 老粗"), (Texts{u"乡下人", u"老粗"}));
  EXPECT_EQ(words(u"adv. &. adj.[数]逐项地(的)"), (Texts{u"逐项地"}));
}

TEST(ParseLine, SkipsNumeralsThatBecameLetters) {
  EXPECT_EQ(words(u"l adj.(爱琴海中)得洛斯岛(Delos)的ll n.得洛斯人"),
            (Texts{u"得洛斯岛的", u"得洛斯人"}));
  EXPECT_EQ(words(u"l v.(使)(航空器等)脱离轨道 ll n.( 航空器等的)脱离轨道"),
            (Texts{u"脱离轨道", u"脱离轨道"}));
}

TEST(ParseLine, SplitsSensesWithoutASeparator) {
  EXPECT_EQ(words(u"n. 渗透现象v.使渗透"), (Texts{u"渗透现象", u"使渗透"}));
  EXPECT_EQ(words(u"a. 全部的n.罩衫, 工装裤"), (Texts{u"全部的", u"罩衫", u"工装裤"}));
  EXPECT_EQ(text(u"[医] 地方病 adj.风土的", Subject::kMedicine), u"地方病；风土的");
  EXPECT_EQ(words(u"ambiance,n.周围, 气氛"), (Texts{u"周围", u"气氛"}));
}

TEST(ParseLine, ReturnsThePieces) {
  EXPECT_EQ(words(u"n. 罩；风帽；（布质）面罩"), (Texts{u"罩", u"风帽", u"面罩"}));
  EXPECT_EQ(words(u"[医] [心]加速纤维"), (Texts{u"心加速纤维"}));
  EXPECT_EQ(words(u"n. [有化] 醋酸盐, [有化] 乙酸盐"), (Texts{u"醋酸盐", u"乙酸盐"}));
  EXPECT_EQ(words(u"= bleak"), Texts());
}

TEST(ParseLine, AppliesALeadingTagToTheLine) {
  EXPECT_EQ(text(u"[医] 小脑[多发性]硬化, 硬化(症)", Subject::kMedicine),
            u"小脑多发性硬化，硬化(症)");
  EXPECT_EQ(text(u"[医] 甲, 乙", Subject::kChemistry), u"");
}

TEST(ParseLine, AppliesATagInsideTheLineToItsPiece) {
  const std::u16string line = u"n. 恶习；缺点；[机] 老虎钳；卖淫";
  EXPECT_EQ(text(line, Subject::kMechanics), u"老虎钳");
  EXPECT_EQ(words(line), (Texts{u"恶习", u"缺点", u"老虎钳", u"卖淫"}));
}

TEST(ParseLine, TakesShortTagsInMedicalLinesForCharacters) {
  const std::u16string line = u"[医] 体液排出过多, [体]液溢, 脑脊液溢";
  EXPECT_EQ(text(line, Subject::kSport), u"");
  EXPECT_EQ(text(line, Subject::kMedicine), u"体液排出过多，体液溢，脑脊液溢");
  EXPECT_EQ(words(line), (Texts{u"体液排出过多", u"体液溢", u"脑脊液溢"}));
}

TEST(ParseLine, IgnoresMarksOfUsage) {
  for (int i = 0; i < static_cast<int>(dictionary::kSubjectCount); ++i) {
    EXPECT_EQ(text(u"n. [口]家伙", static_cast<Subject>(i)), u"");
  }
  EXPECT_EQ(words(u"n. [口]家伙"), (Texts{u"家伙"}));
}

TEST(ParseLine, RemovesExplanationsOfNames) {
  const std::u16string line =
      u"[人名] [英格兰人姓氏] 塔隆绰号，跑得快者，来源于古法语; [地名] [美国] 塔隆";
  EXPECT_EQ(words(line), (Texts{u"塔隆", u"塔隆"}));
  EXPECT_EQ(text(line, Subject::kPlace), u"[美国]塔隆");
  EXPECT_EQ(text(line, Subject::kPerson), u"[英格兰人姓氏]塔隆绰号，跑得快者，来源于古法语");
}

TEST(ParseLine, RecognizesAnnouncedNames) {
  const std::u16string line = u"n. (Bati)人名；(阿拉伯)巴提；(法、罗)巴蒂";
  EXPECT_EQ(words(line), (Texts{u"巴提", u"巴蒂"}));
  EXPECT_EQ(text(line, Subject::kPerson), u"(阿拉伯)巴提；(法、罗)巴蒂");
}

TEST(ParseLine, RecognizesNamesAnnouncedByABareWord) {
  const std::u16string line = u"人名；(西)布里希达；(意)布里吉达";
  EXPECT_EQ(words(line), (Texts{u"布里希达", u"布里吉达"}));
  EXPECT_EQ(text(line, Subject::kPerson), u"(西)布里希达；(意)布里吉达");
  EXPECT_EQ(words(u"塔索; 人名；(西、葡、意)塔索"), (Texts{u"塔索", u"塔索"}));
  EXPECT_EQ(text(u"塔索; 人名；(西、葡、意)塔索", Subject::kPerson), u"(西、葡、意)塔索");
  EXPECT_EQ(text(u"地名；(英)甲地", Subject::kPlace), u"(英)甲地");
  EXPECT_EQ(words(u"姓氏；(英)甲氏"), (Texts{u"甲氏"}));
}

TEST(ParseLine, RefusesALoneWordThatAnnouncesNames) {
  EXPECT_EQ(words(u"人名"), Texts());
  EXPECT_EQ(words(u"n. 人名"), Texts());
  EXPECT_EQ(words(u"姓氏"), Texts());
}

TEST(ParseLine, KeepsWordsForNamesThatAreTheTranslation) {
  EXPECT_EQ(words(u"n. 地名, 以地名命名者"), (Texts{u"地名", u"以地名命名者"}));
  EXPECT_EQ(words(u"n. 地名"), (Texts{u"地名"}));
  EXPECT_EQ(words(u"(place-name 的复数) n. 地名"), (Texts{u"地名"}));
  EXPECT_EQ(words(u"[法] 姓氏"), (Texts{u"姓氏"}));
  EXPECT_EQ(words(u"n. 姓氏, 姓"), (Texts{u"姓氏", u"姓"}));
  EXPECT_EQ(text(u"n. 地名, 以地名命名者", Subject::kPlace), u"");
}

TEST(ParseLine, EndsAnExplanationAtTheNextSemicolon) {
  EXPECT_EQ(words(u"[医]大菱形肌：起于胸椎横突，止于肩胛骨内缘；菱形肌"),
            (Texts{u"大菱形肌", u"菱形肌"}));
}

TEST(ParseLine, RefusesPiecesWithAnUnwritableCharacter) {
  const std::u16string line = dictionary::decodeEntities(u"[医] 内<&14&>动脉, 内眦动脉");
  EXPECT_EQ(words(line), (Texts{u"内眦动脉"}));
  EXPECT_EQ(text(line, Subject::kMedicine), u"内眦动脉");
}

TEST(ParseLine, ReturnsTheInflectionNote) {
  EXPECT_EQ(parseLine(u"(apple 的复数) n. 苹果").inflection, u"apple的复数");
  EXPECT_EQ(parseLine(u"n. 苹果").inflection, u"");
}

// residential
TEST(ParseLine, TakesAColonInALineOfLawForAComma) {
  const std::u16string line = u"[法] 有关居住的, 房产的:居所的, 适于居住的";
  EXPECT_EQ(words(line), (Texts{u"有关居住的", u"房产的", u"居所的", u"适于居住的"}));
  EXPECT_EQ(text(line, Subject::kLaw), u"有关居住的，房产的，居所的，适于居住的");
  EXPECT_EQ(words(u"[化] 泡碱:氧化钠"), (Texts{u"泡碱"}));
}

// und; -merism
TEST(ParseLine, DividesAQuotedMeaning) {
  EXPECT_EQ(words(u"comb. 表示“水, 波浪”"), (Texts{u"水", u"波浪"}));
  EXPECT_EQ(text(u"[医] 表示“水, 波浪”之义; 浪", Subject::kMedicine), u"表示“水, 波浪”之义；浪");
}

// Rousseau, Zola, betjeman, beuys, Eamon
TEST(ParseLine, LeavesOutWhatTellsALife) {
  EXPECT_EQ(words(u"Hanri 卢梭(1844-1910), 法国画家, Pierre 卢梭(1812-1867), 法国风景画家; 卢梭"),
            (Texts{u"卢梭", u"卢梭", u"卢梭"}));
  EXPECT_EQ(words(u"左拉(1840-1902), 法国作家, 小说家"), (Texts{u"左拉"}));
  EXPECT_EQ(words(u"贝杰曼; 约翰((1906-1984) 英国诗人; 其作品常有怀旧情绪"), (Texts{u"贝杰曼"}));
  EXPECT_EQ(words(u"博伊于斯, 约瑟夫((1921-1986) 德国艺术家); [电影]波依斯"),
            (Texts{u"博伊于斯", u"波依斯"}));
  EXPECT_EQ(words(u"埃蒙（男子名, 爱尔兰语）, 含义是“愉快的保护”（happy protection）"),
            (Texts{u"埃蒙"}));
}

// "systolic | [医] 收缩[期]的", "halfan | [医]卤泛群[抗疟药]"
TEST(ParseLine, ReturnsTheFullAndTheShortForm) {
  const Piece systolic = parseLine(u"[医] 收缩[期]的").pieces.at(0);
  EXPECT_EQ(systolic.equivalent.word, u"收缩期的");
  EXPECT_EQ(systolic.shortForm, u"收缩的");
  EXPECT_EQ(systolic.noted, u"收缩期的");
  const Piece drug = parseLine(u"[医]卤泛群[抗疟药]").pieces.at(0);
  EXPECT_EQ(drug.equivalent.word, u"卤泛群");
  EXPECT_EQ(drug.shortForm, u"");
  EXPECT_EQ(drug.noted, u"卤泛群[抗疟药]");
  EXPECT_EQ(parseLine(u"[医] 体液排出过多, [体]液溢").pieces.at(1).shortForm, u"液溢");
  EXPECT_EQ(parseLine(u"[计] 振子[器]").pieces.at(0).equivalent.word, u"振子");
  EXPECT_EQ(parseLine(u"n. [医] 喉镜[检查]").pieces.at(0).equivalent.word, u"喉镜");
  const Piece tooLong = parseLine(u"[医] " + std::u16string(20, u'长') + u"[的]").pieces.at(0);
  EXPECT_EQ(tooLong.equivalent.word, std::u16string(20, u'长'));
  EXPECT_EQ(tooLong.shortForm, u"");
}

// "debiting | v. 记入（账户）的借方( debit的现在分词 )", "uncock | vt.把(枪枝)的击铁扳至非击发位置"
TEST(ParseLine, KeepsThePlaceOfAVerbsObject) {
  EXPECT_EQ(words(u"v. 记入（账户）的借方( debit的现在分词 )"), (Texts{u"记入…的借方"}));
  EXPECT_EQ(words(u"vt. 结扎(人或动物)的输精管"), (Texts{u"结扎…的输精管"}));
  EXPECT_EQ(words(u"vt.把(枪枝)的击铁扳开"), (Texts{u"把…的击铁扳开"}));
  EXPECT_EQ(words(u"v. 伸长脖子看（或听）的人"), (Texts{u"伸长脖子看的人"}));
  EXPECT_EQ(words(u"n. 国王(英国)的权利"), (Texts{u"国王的权利"}));
  EXPECT_EQ(words(u"vt. 移动(某物)"), (Texts{u"移动"}));
}

TEST(ParseLine, TakesEveryItemOfAListOfPlacesForOne) {
  EXPECT_EQ(words(u"[地名] 甲地、乙地, 在某国"), (Texts{u"甲地", u"乙地"}));
  EXPECT_EQ(words(u"[人名] 甲、乙"), (Texts{u"甲"}));
}

// "bargham | [英方]马颈环", "bosque | <美方> n.树丛", "agees | [英国方言]歪(的)", "adjournal | n.
// <废>", "abhominable | a. [废语]", "almery | n. [罕用语]", "antre | n. <古>[诗]洞窟", "boogie |
// …[蔑]黑人", "cripes | int. <粗>", "bubber | …[儿语]兄弟", "aiblins | adv. <苏格兰>可能"
TEST(ParseLine, KnowsTheMarksOfRareUse) {
  for (const std::u16string mark :
       {u"方",   u"英方",   u"美方",     u"方言", u"英国方言", u"古",        u"古语", u"废",
        u"废语", u"罕",     u"罕用语",   u"诗",   u"蔑",       u"粗",        u"旧",   u"儿语",
        u"黑话", u"苏格兰", u"主苏格兰", u"俚",   u"美国俚语", u"英国的俚语"}) {
    EXPECT_TRUE(parseLine(u"n. <" + mark + u">甲").pieces.at(0).slang)
        << std::string(mark.begin(), mark.end());
  }
  for (const std::u16string note : {u"美", u"口", u"古生物", u"英国海军俚语", u"旧约"}) {
    EXPECT_FALSE(parseLine(u"n. <" + note + u">甲").pieces.at(0).slang)
        << std::string(note.begin(), note.end());
  }
}

TEST(ParseLine, AppliesAMarkOfUsageAtTheHeadToTheLine) {
  for (const Piece& piece : parseLine(u"n. <俚>甲；乙").pieces) EXPECT_TRUE(piece.slang);
  const std::vector<Piece> pieces = parseLine(u"n. 甲；<俚>乙, 丙；丁").pieces;
  ASSERT_EQ(pieces.size(), 4U);
  EXPECT_FALSE(pieces[0].slang);
  EXPECT_TRUE(pieces[1].slang);
  EXPECT_TRUE(pieces[2].slang);
  EXPECT_FALSE(pieces[3].slang);
}

}  // namespace
