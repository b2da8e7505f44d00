// Translations are those of the source, some shortened.
#include "dictionary/arrange/senses.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dictionary/translation/entry.h"

namespace {

using dictionary::Entry;
using dictionary::sensesOf;

constexpr std::uint32_t kRare = 60'000;

Entry entry(const std::string& word, const std::string& translation, std::uint32_t rank) {
  auto extracted = dictionary::extractEntry({word, translation, true, rank, ""});
  EXPECT_TRUE(extracted.has_value());
  return std::move(*extracted);
}

std::vector<std::u16string> words(const Entry& entry) {
  std::vector<std::u16string> words;
  for (const dictionary::Sense& sense : sensesOf(entry)) words.push_back(*sense.word);
  return words;
}

using Words = std::vector<std::u16string>;

TEST(Senses, OfARareWordAreAllOrdinaryFirstThenNamesThenFromTheWeb) {
  const Entry rare = entry(
      "abaci", "[网络] 算盘\\n[人名] 阿巴奇\\nn. 顶板, 甲, 乙, 丙, 丁, 戊, 己, 庚, 辛, 壬, 癸, 子",
      kRare);
  EXPECT_EQ(words(rare), (Words{u"顶板", u"甲", u"乙", u"丙", u"丁", u"戊", u"己", u"庚", u"辛",
                                u"壬", u"癸", u"子", u"阿巴奇", u"算盘"}));
}

TEST(Senses, AreDistinct) {
  EXPECT_EQ(words(entry("bit", "n. 位, 比特\\n[计] 位", kRare)), (Words{u"位", u"比特"}));
}

TEST(Senses, OfACommonWordAreTenInTurnFromEachLine) {
  const std::string hand =
      "n. 手, 爪, 指针, 掌握, 协助, 人手, 手艺, 手迹, 支配, 插手\\n"
      "vt. 交给, 支持, 搀扶";
  EXPECT_EQ(words(entry("hand", hand, 163)), (Words{u"手", u"爪", u"指针", u"掌握", u"协助",
                                                    u"人手", u"手艺", u"交给", u"支持", u"搀扶"}));
  EXPECT_EQ(words(entry("hand", hand, 5000)).size(), 10U);
  EXPECT_EQ(words(entry("hand", hand, 5001)).size(), 13U);
  EXPECT_EQ(words(entry("hand", hand, 0)).size(), 13U) << "0 is no rank";
}

TEST(Senses, OfACommonWordHaveTheBestTurnOfTheLinesThatRepeatThem) {
  const std::string cut =
      "n. 切口, 割伤, 降低, 切, 割, 砍\\na. 经切割的, 缩减的\\nvt. 切, 割, 减少, 刺痛\\n"
      "vi. 切, 割, 相交, 抄近路, 剪辑";
  EXPECT_EQ(words(entry("cut", cut, 414)),
            (Words{u"切口", u"割伤", u"切", u"割", u"经切割的", u"缩减的", u"减少", u"刺痛",
                   u"相交", u"抄近路"}));
}

TEST(Senses, OfACommonWordAreNoSlangBesideOthers) {
  EXPECT_EQ(words(entry("william", "n. 威廉（男子名）；[常作W-][美俚]钞票, 纸币", 1122)),
            (Words{u"钞票", u"纸币", u"威廉"}))
      << "a name is no other ordinary sense";
  EXPECT_EQ(words(entry("copper", "n. 铜, 铜币；[俚]警察, 巡警；红铜色", 2500)),
            (Words{u"铜", u"铜币", u"红铜色"}));
  EXPECT_EQ(words(entry("thou", "pron. <古>你, 汝\\nn. 千", 4000)), (Words{u"千"}));
  EXPECT_EQ(words(entry("thou", "pron. <古>你, 汝", 4000)), (Words{u"你", u"汝"}));
  EXPECT_EQ(words(entry("copper", "n. 铜；[俚]警察", kRare)), (Words{u"铜", u"警察"}));
}

TEST(Senses, OfACommonWordAreTwoOfASubjectAtMost) {
  EXPECT_EQ(words(entry("cell", "n. 小屋, 细胞\\n[计] 单元格, 单元, 存储元\\n[医] 小房", 927)),
            (Words{u"小屋", u"细胞", u"单元格", u"小房"}));
  EXPECT_EQ(words(entry("greatest", "[计] 最大的, 甲, 乙", 1597)), (Words{u"最大的", u"甲", u"乙"}))
      << "there is nothing else";
}

TEST(Senses, OfACommonWordAreNoProgramsNorCommands) {
  const std::string nut = "n. 坚果, 螺母\\n[计] Novell NetWare服务器实用程序, TCP实用程序";
  EXPECT_EQ(words(entry("nut", nut, 3900)), (Words{u"坚果", u"螺母"}));
  EXPECT_EQ(words(entry("grant", "n. 授与, 拨款\\n[计] 授权, 授权命令", 1000)),
            (Words{u"授与", u"拨款", u"授权"}));
  EXPECT_EQ(words(entry("nut", nut, kRare)).size(), 4U);
  EXPECT_EQ(words(entry("grep", "[计] 查找命令", 4000)), (Words{u"查找命令"}))
      << "there is nothing else";
}

TEST(Senses, OfACommonWordAreNoExpansionsOfAnAbbreviation) {
  const std::string cat =
      "n. 猫, 恶妇\\nvi. 呕吐\\n计算机辅助教育, 计算机辅助测试\\n[计] 计算机辅助教学, 词目";
  EXPECT_EQ(words(entry("cat", cat, 1712)), (Words{u"猫", u"恶妇", u"呕吐", u"词目"}));
  EXPECT_EQ(words(entry("cat", cat, kRare)).size(), 7U);
  EXPECT_EQ(words(entry("gap", "n. 缝隙, 通用汇编装置\\n[计] 通用汇编装置, 间距", 1988)),
            (Words{u"缝隙", u"间距"}))
      << "it is one wherever it stands";
  EXPECT_EQ(words(entry("cat", "n. 猫\\n[计] 计算机测试", 1712)), (Words{u"猫"}));
  EXPECT_EQ(words(entry("cat", "n. 猫\\n[计] 辅助测试", 1712)), (Words{u"猫", u"辅助测试"}))
      << "too short for one";
  EXPECT_EQ(words(entry("lamps", "n. 灯\\n[计] 逻辑模拟系统", 3340)), (Words{u"灯"}));
  EXPECT_EQ(words(entry("tables", "n. 桌子\\n[计] 模拟运算表", 410)),
            (Words{u"桌子", u"模拟运算表"}))
      << "a longer word is no abbreviation";
  EXPECT_EQ(words(entry("rose", "n. 玫瑰\\nrise的过去式", 2179)),
            (Words{u"玫瑰", u"rise的过去式"}));
  EXPECT_EQ(words(entry("legal", "a. 法律的\\n[法] 法律上规定的", 764)),
            (Words{u"法律的", u"法律上规定的"}));
}

TEST(Senses, OfAnAbbreviationAreItsExpansions) {
  EXPECT_EQ(words(entry("IBM", "美国国际商用机器公司\\n[计] 国际商用机器公司", 1909)).size(), 2U);
  EXPECT_EQ(words(entry("ceo", "abbr. 首席执行官员", 3000)), (Words{u"首席执行官员"}));
}

TEST(Senses, OfAFunctionWordAreNoneOfASubject) {
  EXPECT_EQ(words(entry("at", "prep. 在, 对, 向\\n[计] 地址转换器", 19)),
            (Words{u"在", u"对", u"向"}));
  EXPECT_EQ(words(entry("am", "be的单数第一人称\\n[计] 存取管理程序, 寻址方式", 0)),
            (Words{u"be的单数第一人称"}));
}

TEST(Senses, OfOneOfTheMostFrequentWordsAreNoneOfASubject) {
  const std::string put = "vt. 放, 安置\\n[计] 发送文件";
  EXPECT_EQ(words(entry("put", put, 120)), (Words{u"放", u"安置"}));
  EXPECT_EQ(words(entry("put", put, 121)), (Words{u"放", u"安置", u"发送文件"}));
}

TEST(Senses, OfACommonWordAreNoneFromTheWebBesideOthers) {
  EXPECT_EQ(words(entry("data", "pl. 资料, 数据\\n[网络] 数值", 552)), (Words{u"资料", u"数据"}));
  EXPECT_EQ(words(entry("brexit", "[网络] 脱欧；英国脱欧", 900)), (Words{u"脱欧", u"英国脱欧"}));
}

TEST(Senses, KnowTheirPartOfSpeechAndWhetherTheyNameAForm) {
  const Entry saw = entry("saw", "n. 锯子\\nvt. 锯\\nsee的过去式", 6947);
  const auto senses = sensesOf(saw);
  ASSERT_EQ(senses.size(), 3U);
  EXPECT_EQ(senses[0].parts, setOf(dictionary::PartOfSpeech::kNoun));
  EXPECT_EQ(senses[1].parts, setOf(dictionary::PartOfSpeech::kVerb));
  EXPECT_FALSE(senses[1].reference);
  EXPECT_TRUE(senses[2].reference);
}

// "n. 使用, 习惯\nvt. 使用, 利用\n[计] 利用"
TEST(Senses, HaveThePartsOfSpeechAndSubjectsOfAllTheirLines) {
  const Entry use = entry("use", "n. 使用, 习惯\\nvt. 使用, 利用\\n[计] 利用", kRare);
  const auto senses = sensesOf(use);
  ASSERT_EQ(senses.size(), 3U);
  EXPECT_EQ(senses[0].parts,
            setOf(dictionary::PartOfSpeech::kNoun) | setOf(dictionary::PartOfSpeech::kVerb));
  EXPECT_FALSE(senses[0].subject);
  EXPECT_EQ(*senses[2].word, u"利用");
  EXPECT_TRUE(senses[2].subject);
}

// 子 is the tenth of the verb's, after nine that are the noun's as well.
TEST(Senses, OfACommonWordHaveTheTurnOfTheirPlaceInALineThatRepeatsOthers) {
  EXPECT_EQ(words(entry("cut",
                        "n. 甲, 乙, 丙, 丁, 戊, 己, 庚, 辛, 壬, 癸, 子\\n"
                        "vt. 甲, 乙, 丙, 丁, 戊, 己, 庚, 辛, 壬, 子",
                        414)),
            (Words{u"甲", u"乙", u"丙", u"丁", u"戊", u"己", u"庚", u"辛", u"壬", u"癸"}));
}

TEST(Senses, WithAWebTagAreFromTheWeb) {
  EXPECT_EQ(words(entry("hood", "[网络] 胡德（姓氏）\\n[人名] 胡特\\nn. 头巾", kRare)),
            (Words{u"头巾", u"胡特", u"胡德"}));
}

TEST(Senses, ThatAreNamesAreNoSlang) {
  EXPECT_EQ(words(entry("copper", "n. 铜\\n[俚] 科珀（姓氏）", 2500)), (Words{u"铜", u"科珀"}));
}

// "felt n. 毛毯, 毡 … feel的过去式和过去分词"
TEST(Senses, ThatNameAFormAreNotAmongTheTen) {
  EXPECT_EQ(
      words(entry("felt", "n. 甲, 乙, 丙, 丁, 戊, 己, 庚, 辛, 壬, 癸, 子\\nfeel的过去式", 100)),
      (Words{u"甲", u"乙", u"丙", u"丁", u"戊", u"己", u"庚", u"辛", u"壬", u"癸",
             u"feel的过去式"}));
}

TEST(Senses, OfASubjectAreAmongTheTen) {
  EXPECT_EQ(words(entry("cell", "n. 甲, 乙, 丙, 丁, 戊, 己, 庚, 辛, 壬, 癸\\n[计] 单元格, 单元, 元",
                        927)),
            (Words{u"甲", u"乙", u"丙", u"丁", u"戊", u"己", u"庚", u"辛", u"单元格", u"单元"}));
}

// "硬脑[脊]膜" is 硬脑膜 as well, since that stands elsewhere; "全适供[血]者" is not 全适供者.
TEST(ShortForms, AreAddedWhereTheyAreWords) {
  Entry term = entry("word", "[医] 硬脑[脊]膜, 全适供[血]者, 10%溶液", 0);
  dictionary::ShortForms forms;
  forms.record(term);
  forms.record(entry("word", "n. 硬脑膜, 10%溶液", 0));
  ASSERT_TRUE(hasShortForm(term));
  forms.complete(term);
  ASSERT_EQ(term.lines.at(0).pieces.size(), 4U);
  const dictionary::Piece& form = term.lines.at(0).pieces.at(3);
  EXPECT_EQ(form.equivalent.word, u"硬脑膜");
  EXPECT_EQ(form.noted, u"");
  EXPECT_EQ(form.subjects, setOf(dictionary::Subject::kMedicine));
  EXPECT_EQ(subjectText(term.lines.at(0), dictionary::Subject::kMedicine),
            u"硬脑脊膜，全适供血者，10%溶液");
}

TEST(ShortForms, AreNotNeededWithoutOptionalCharacters) {
  EXPECT_FALSE(hasShortForm(entry("word", "[医] 硬脑膜\\nn. 人[语]", 0)));
}

}  // namespace
