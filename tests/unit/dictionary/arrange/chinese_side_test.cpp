#include "dictionary/arrange/chinese_side.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/unit/dictionary/arrange/pair_collector_test.h"

namespace {

using dictionary::addChineseSide;
using dictionary::ChineseEntry;
using dictionary::ChineseSources;
using dictionary::Gloss;
using dictionary::GlossValue;
using dictionary::Subject;
using dictionary::Tier;
using dictionary::Vocabulary;
using pair_collector_test::collect;
using pair_collector_test::entry;
using pair_collector_test::texts;

ChineseEntry chinese(std::u16string_view word, const std::vector<std::u16string>& glosses) {
  ChineseEntry result{std::u16string(word), {}};
  for (const std::u16string& gloss : glosses) {
    result.glosses.push_back({gloss, 1, 0, GlossValue::kPair});
  }
  return result;
}

Tier tierOfPair(const Vocabulary& vocabulary, std::u16string_view english,
                std::u16string_view chinese) {
  for (const auto& pair : vocabulary.pairs) {
    if (vocabulary.english[pair.english] == english &&
        vocabulary.chinese[pair.chinese] == chinese) {
      return pair.tier;
    }
  }
  ADD_FAILURE() << "no such pair";
  return Tier::kWeb;
}

TEST(ChineseSide, AddsPairsInTheTextOrder) {
  const Vocabulary vocabulary =
      addChineseSide(collect({entry("station", "n. 站")}),
                     {{chinese(u"基站", {u"base station"}), chinese(u"站", {u"Station", u"stop"})},
                      {{u"cloud computing", u"云计算", Subject::kComputing}},
                      {}});
  EXPECT_EQ(texts(vocabulary),
            (std::vector<std::u16string>{u"base station=基站", u"cloud computing=云计算",
                                         u"station=站", u"stop=站"}));
  EXPECT_EQ(vocabulary.ranks.size(), 4U);
}

TEST(ChineseSide, TakesThreeEquivalentsOfAWord) {
  const Vocabulary vocabulary =
      addChineseSide({}, {{chinese(u"时候", {u"time", u"period", u"moment", u"hour"})}, {}, {}});
  EXPECT_EQ(texts(vocabulary),
            (std::vector<std::u16string>{u"moment=时候", u"period=时候", u"time=时候"}));
  EXPECT_EQ(tierOfPair(vocabulary, u"time", u"时候"), Tier::kFirst);
  EXPECT_EQ(tierOfPair(vocabulary, u"period", u"时候"), Tier::kOrdinary);
}

TEST(ChineseSide, TakesAnExplanationOnlyForAWordThatHasNothingElse) {
  ChineseEntry idiom{
      u"画蛇添足",
      {{u"ruin something by adding what is not needed", 8, 0, GlossValue::kExplanation},
       {u"second explanation of the same", 5, 0, GlossValue::kExplanation}}};
  EXPECT_EQ(texts(addChineseSide({}, {{idiom}, {}, {}})),
            std::vector<std::u16string>{u"ruin something by adding what is not needed=画蛇添足"});
  EXPECT_EQ(texts(addChineseSide(collect({entry("overdo", "v. 画蛇添足")}), {{idiom}, {}, {}})),
            std::vector<std::u16string>{u"overdo=画蛇添足"});
  idiom.glosses.push_back({u"overdo", 1, 0, GlossValue::kUsage});
  EXPECT_EQ(texts(addChineseSide({}, {{idiom}, {}, {}})),
            std::vector<std::u16string>{u"overdo=画蛇添足"});
}

TEST(ChineseSide, KeepsTheBetterTierOfAPair) {
  const Vocabulary vocabulary = addChineseSide(
      collect({entry("rail", "n. 轨道", true), entry("track", "n. 道路, 铁轨")}),
      {{chinese(u"轨道", {u"orbit", u"rail"}), chinese(u"铁轨", {u"track"})}, {}, {}});
  EXPECT_EQ(tierOfPair(vocabulary, u"rail", u"轨道"), Tier::kImportantFirst);
  EXPECT_EQ(tierOfPair(vocabulary, u"track", u"铁轨"), Tier::kFirst);
}

TEST(ChineseSide, PutsGlossesBehindWhatTheVocabularyGives) {
  const ChineseEntry idiom{
      u"画蛇添足", {{u"ruin by adding what is not needed", 7, 0, GlossValue::kExplanation}}};
  const Vocabulary vocabulary =
      addChineseSide(collect({entry("rail", "n. 轨道")}),
                     {{chinese(u"铁路", {u"railway", u"rail"}), idiom}, {}, {}});
  EXPECT_EQ(pair_collector_test::pairOf(vocabulary, u"rail", u"轨道").position, 0U);
  EXPECT_EQ(pair_collector_test::pairOf(vocabulary, u"railway", u"铁路").position, 100U);
  EXPECT_EQ(pair_collector_test::pairOf(vocabulary, u"rail", u"铁路").position, 101U);
  EXPECT_EQ(pair_collector_test::tierOf(vocabulary, u"画蛇添足"), Tier::kFirst);
  for (const auto& pair : vocabulary.pairs) {
    if (vocabulary.chinese[pair.chinese] == u"画蛇添足") {
      EXPECT_EQ(pair.position, 200U);
    }
  }
}

TEST(ChineseSide, RatesPairsOfCommonWordsAsImportant) {
  const Vocabulary vocabulary = addChineseSide(
      collect({entry("rail", "n. 轨道, 铁路")}),
      {{chinese(u"这个", {u"this", u"this one"}), chinese(u"基站", {u"base station"})},
       {},
       {{u"这个", 20'000}, {u"基站", 20'001}, {u"铁路", 5}}});
  EXPECT_EQ(tierOfPair(vocabulary, u"this", u"这个"), Tier::kImportantFirst);
  EXPECT_EQ(tierOfPair(vocabulary, u"this one", u"这个"), Tier::kImportant);
  EXPECT_EQ(tierOfPair(vocabulary, u"base station", u"基站"), Tier::kFirst);
  EXPECT_EQ(tierOfPair(vocabulary, u"rail", u"铁路"), Tier::kImportantFirst);
}

TEST(ChineseSide, RatesTheFirstRowOfEveryChineseHeadword) {
  const Vocabulary vocabulary = addChineseSide(
      collect({entry("rail", "n. 轨道, 铁路, 栏杆"), entry("railing", "n. 栏杆, 扶手"),
               entry("Rally", "[人名] 拉利\\n[网络] 集会, 拉力赛")}),
      {{}, {}, {{u"扶手", 30'000}}});
  EXPECT_EQ(tierOfPair(vocabulary, u"rail", u"轨道"), Tier::kFirst);
  EXPECT_EQ(tierOfPair(vocabulary, u"rail", u"铁路"), Tier::kFirstOfChinese);
  EXPECT_EQ(tierOfPair(vocabulary, u"rail", u"栏杆"), Tier::kOrdinary);
  EXPECT_EQ(tierOfPair(vocabulary, u"railing", u"扶手"), Tier::kFirst);
  EXPECT_EQ(tierOfPair(vocabulary, u"Rally", u"拉力赛"), Tier::kWeb);
}

TEST(ChineseSide, RatesTheFirstEquivalentOfSeveralWordsForAChineseHeadword) {
  const Vocabulary vocabulary = addChineseSide(
      collect({entry("rail", "n. 轨道, 栏杆, 扶手"), entry("railing", "n. 围栏, 扶手")}), {});
  EXPECT_EQ(tierOfPair(vocabulary, u"rail", u"扶手"), Tier::kOrdinary);
  EXPECT_EQ(tierOfPair(vocabulary, u"railing", u"扶手"), Tier::kFirstOfChinese);
}

TEST(ChineseSide, RatesAChineseHeadwordThatOnlyAFormGives) {
  const Vocabulary vocabulary =
      addChineseSide(collect({entry("railings", "n. 围栏, 扶手", false, 0, "0:railing/1:s")}), {});
  EXPECT_EQ(tierOfPair(vocabulary, u"railings", u"扶手"), Tier::kFirstOfChinese);
}

TEST(ChineseSide, RatesTheFirstOfSeveralKnownEquivalentsOfASubject) {
  const Vocabulary vocabulary =
      addChineseSide(collect({entry("random variable", "[计] 随机变数, 随机变量, 变量"),
                              entry("variable", "n. 变量"), entry("variate", "n. 随机变量")}),
                     {{}, {}, {{u"随机变量", 90'000}, {u"变量", 90'001}}});
  EXPECT_EQ(tierOfPair(vocabulary, u"random variable", u"随机变量"), Tier::kKnownOfSubject);
  EXPECT_EQ(tierOfPair(vocabulary, u"random variable", u"变量"), Tier::kOfSubject);
}

// Writers use 随机变量, which a list of frequencies has; the source gives it second.
TEST(ChineseSide, RatesTheFirstKnownEquivalentOfASubject) {
  const auto tierOfVariable = [](const char* lines, const dictionary::WordRanks& ranks) {
    return tierOfPair(
        addChineseSide(collect({entry("random variable", lines), entry("variate", "n. 随机变量")}),
                       {{}, {}, ranks}),
        u"random variable", u"随机变量");
  };
  const dictionary::WordRanks ranks = {{u"随机变量", 90'000}};
  const char* const lines = "[计] 随机变数, 机变数, 随机变量";
  EXPECT_EQ(tierOfVariable(lines, ranks), Tier::kKnownOfSubject);
  EXPECT_EQ(tierOfVariable("n. 随机变数\\n[计] 随机变量\\n[化] 随机变量", ranks),
            Tier::kKnownOfSubject);
  EXPECT_EQ(tierOfVariable(lines, {}), Tier::kOfSubject);
  EXPECT_EQ(tierOfVariable("n. 随机变数, 随机变量", ranks), Tier::kOrdinary);
  EXPECT_EQ(tierOfVariable(lines, {{u"随机变量", 90'000}, {u"随机变数", 90'001}}),
            Tier::kOfSubject);
  EXPECT_EQ(
      tierOfVariable("[计] 随机变数, 机变数, 随机变量", {{u"机变数", 90'000}, {u"随机变量", 1}}),
      Tier::kOfSubject);
}

TEST(ChineseSide, SpellsAWordWithTheCapitalsThatBothSourcesGive) {
  const Vocabulary vocabulary = addChineseSide(
      collect({entry("CORE", "n. 核心"), entry("Based On", "根据"), entry("AIDS", "n. 爱滋病"),
               entry("Polish", "n. 磨光"), entry("gin", "n. 杜松子酒"), entry("OLDIE", "n. 老歌")}),
      {{chinese(u"核", {u"core"}), chinese(u"按", {u"based on"}),
        chinese(u"艾滋病", {u"AIDS", u"aids"}), chinese(u"上光", {u"polish"}),
        chinese(u"波兰的", {u"Polish"}), chinese(u"京族", {u"Gin"})},
       {},
       {}});
  EXPECT_EQ(vocabulary.english, (std::vector<std::u16string>{u"AIDS", u"based on", u"core", u"gin",
                                                             u"OLDIE", u"Polish"}));
}

TEST(ChineseSide, RatesAnAbbreviationAsItsLongForm) {
  const Vocabulary vocabulary =
      addChineseSide({}, {{chinese(u"国内生产总值", {u"gross domestic product", u"GDP"})}, {}, {}});
  EXPECT_EQ(tierOfPair(vocabulary, u"GDP", u"国内生产总值"), Tier::kFirst);
  const Vocabulary longest = addChineseSide(
      {}, {{chinese(u"联合国教科文组织", {u"cultural organization", u"UNESCO"})}, {}, {}});
  EXPECT_EQ(tierOfPair(longest, u"UNESCO", u"联合国教科文组织"), Tier::kFirst);
  const Vocabulary other = addChineseSide(
      {}, {{chinese(u"总值", {u"total", u"Gdp", u"GD"}), chinese(u"值", {u"value", u"GDPGDPG"})},
           {},
           {}});
  EXPECT_EQ(tierOfPair(other, u"Gdp", u"总值"), Tier::kOrdinary);
  EXPECT_EQ(tierOfPair(other, u"GD", u"总值"), Tier::kOrdinary);
  EXPECT_EQ(tierOfPair(other, u"GDPGDPG", u"值"), Tier::kOrdinary);
}

TEST(ChineseSide, GivesEveryTermARow) {
  const Vocabulary vocabulary = addChineseSide(
      collect({entry("cloud", "n. 云, 阴影")}),
      {{}, {{u"cloud", u"阴影", {}}, {u"drone", u"无人机", Subject::kMilitary}}, {}});
  EXPECT_EQ(tierOfPair(vocabulary, u"cloud", u"阴影"), Tier::kImportantFirst);
  EXPECT_EQ(tierOfPair(vocabulary, u"drone", u"无人机"), Tier::kImportantFirst);
}

/// Whether the term gets a row beside these entries.
bool takesTerm(const std::vector<dictionary::Entry>& entries, const std::u16string& term) {
  const Vocabulary vocabulary =
      addChineseSide(collect(entries), {{}, {{term, u"信息技术", Subject::kComputing}}, {}});
  return std::ranges::count(vocabulary.chinese, u"信息技术") > 0;
}

// "IT | 信息技术" would stand among the meanings of "it".
TEST(ChineseSide, LeavesAbbreviationsOutThatReadAsCommonWords) {
  EXPECT_FALSE(takesTerm({entry("it", "pron. 它", true, 5'000)}, u"IT"));
  EXPECT_TRUE(takesTerm({entry("it", "pron. 它", true, 5'001)}, u"IT"));
  EXPECT_TRUE(takesTerm({entry("it", "pron. 它", true, 0)}, u"IT"));
  EXPECT_TRUE(takesTerm({entry("IT", "pron. 它", true, 5'000)}, u"IT"))
      << "an abbreviation to the source as well";
  EXPECT_TRUE(takesTerm({entry("it", "pron. 它", true, 5'000)}, u"It"));
  EXPECT_TRUE(takesTerm({entry("that", "pron. 它", true, 5'000)}, u"IT"));
}

// "plc" and "san" are as frequent, but no words: "plc | 公共有限公司\n[计] 可编程逻辑控制器".
TEST(ChineseSide, TakesAbbreviationsThatTheSourceHasNoWordFor) {
  EXPECT_TRUE(takesTerm({entry("plc", "公共有限公司", true, 2'000)}, u"PLC"));
  EXPECT_TRUE(takesTerm({entry("plc", "n. [计] 可编程逻辑控制器", true, 2'000)}, u"PLC"));
  const auto abbreviation = entry("plc", "公共有限公司", true, 2'000);
  const auto word = entry("Plc", "n. 它", true, 9);
  EXPECT_FALSE(takesTerm({abbreviation, word}, u"PLC"));
  EXPECT_FALSE(takesTerm({word, abbreviation}, u"PLC"));
}

// "ate" has no rank; "gan" is a form of a word that few readers know.
TEST(ChineseSide, LeavesAbbreviationsOutThatReadAsFormsOfCommonWords) {
  const auto takes = [](const char* translation, std::uint32_t form, std::uint32_t lemma) {
    return takesTerm(
        {entry("ate", translation, true, form, "0:eat/1:p"), entry("eat", "vt. 吃", true, lemma)},
        u"ATE");
  };
  for (const char* translation : {"", "eat的过去式", "n. 女神", "v. 吃（eat的过去式）"}) {
    EXPECT_FALSE(takes(translation, 0, 5'000)) << translation;
    EXPECT_TRUE(takes(translation, 0, 5'001)) << translation;
    EXPECT_TRUE(takes(translation, 5'001, 700)) << translation;
  }
  // A pronoun has no plural.
  EXPECT_TRUE(takesTerm(
      {entry("mes", "abbr. 互能支援", false, 0, "0:me/1:s"), entry("me", "pron. 我", true, 61)},
      u"MES"));
}

TEST(ChineseSide, LeavesGlossesOutThatReadAsCommonWords) {
  const auto it = collect({entry("it", "pron. 它", true, 9)});
  EXPECT_EQ(texts(addChineseSide(
                it, {{chinese(u"信息技术", {u"IT", u"information technology"})}, {}, {}})),
            (std::vector<std::u16string>{u"information technology=信息技术", u"it=它"}));
}

/// Twelve Chinese words that have all these glosses; the first ones are the less frequent ones.
ChineseSources twelveWords(const std::vector<std::u16string>& glosses, std::uint32_t worstRank) {
  ChineseSources sources;
  for (char16_t i = 0; i < 12; ++i) {
    const std::u16string word = {u'打', static_cast<char16_t>(u'一' + i)};
    sources.entries.push_back(chinese(word, glosses));
    sources.ranks[word] = worstRank - i;
  }
  return sources;
}

/// The same, all of which mean "hit", which has the given rank.
Vocabulary wordsForHit(std::uint32_t rank, std::uint32_t worstRank) {
  return addChineseSide(collect({entry("hit", "v. 打", true, rank)}),
                        twelveWords({u"hit"}, worstRank));
}

// "beautiful" is the gloss of some hundred words, most of which nobody meets.
TEST(ChineseSide, GivesACommonEnglishWordTheMostFrequentSynonymsOnly) {
  const std::vector<std::u16string> eight = texts(wordsForHit(5'000, 40'000));
  EXPECT_EQ(eight.size(), 9U);
  EXPECT_EQ(std::ranges::count(eight, u"hit=打一"), 0);
  EXPECT_EQ(std::ranges::count(eight, u"hit=打七"), 0);
  EXPECT_EQ(texts(wordsForHit(5'001, 40'000)).size(), 13U);
}

// The frequent words have three better glosses each; words without a rank come after all others.
TEST(ChineseSide, LeavesThePlacesOfAWordToThoseThatTakeThem) {
  ChineseSources sources = twelveWords({u"strike", u"beat", u"knock", u"hit"}, 1'000);
  sources.entries.push_back(chinese(u"捶打", {u"hit"}));
  for (const ChineseEntry& entry : twelveWords({u"hit"}, 40'000).entries) {
    sources.entries.push_back(chinese(u"敲" + entry.word, {u"hit"}));
    sources.ranks[u"敲" + entry.word] = 40'000;
  }
  const auto all = texts(addChineseSide(collect({entry("hit", "v. 打", true, 50)}), sources));
  EXPECT_EQ(std::ranges::count_if(all, [](auto& pair) { return pair.starts_with(u"hit=敲"); }), 8);
  EXPECT_EQ(std::ranges::count(all, u"hit=捶打"), 0);
}

TEST(ChineseSide, LeavesAPlaceThatTheVocabularyGivesAlreadyToAnother) {
  const auto all = texts(addChineseSide(collect({entry("hit", "v. 打上, 打", true, 50)}),
                                        twelveWords({u"hit"}, 40'000)));
  EXPECT_EQ(std::ranges::count_if(all, [](auto& pair) { return pair.starts_with(u"hit="); }), 10);
}

// 行 is two entries, háng and xíng.
TEST(ChineseSide, TakesOnePlaceForAChineseWordOfTwoEntries) {
  ChineseSources sources = twelveWords({u"hit"}, 40'000);
  sources.entries.push_back(sources.entries.back());
  const auto all = texts(addChineseSide(collect({entry("hit", "v. 打", true, 50)}), sources));
  EXPECT_EQ(std::ranges::count_if(all, [](auto& pair) { return pair.starts_with(u"hit=打"); }), 9);
}

// More than a sort without order among equals leaves in their places.
TEST(ChineseSide, TakesWordsWithoutARankInTheOrderOfTheirSource) {
  ChineseSources sources;
  for (char16_t i = 0; i < 40; ++i) {
    const std::u16string word = {u'敲', static_cast<char16_t>(u'一' + i * 7 % 40)};
    sources.entries.push_back(chinese(word, {u"hit"}));
  }
  const auto all = texts(addChineseSide(collect({entry("hit", "v. 打", true, 50)}), sources));
  for (std::size_t i = 0; i < 40; ++i) {
    EXPECT_EQ(std::ranges::count(all, u"hit=" + sources.entries[i].word), i < 8 ? 1 : 0) << i;
  }
}

// "娥 | good" would stand beside 好.
TEST(ChineseSide, GivesACommonEnglishWordNoRareCharacter) {
  const auto pairs = [](std::uint32_t rank) {
    return texts(addChineseSide(collect({entry("good", "a. 好的", true, 50)}),
                                {{chinese(u"善", {u"good", u"virtuous"})}, {}, {{u"善", rank}}}));
  };
  EXPECT_EQ(std::ranges::count(pairs(3'000), u"good=善"), 1);
  EXPECT_EQ(std::ranges::count(pairs(3'001), u"good=善"), 0);
  EXPECT_EQ(std::ranges::count(pairs(3'001), u"virtuous=善"), 1);
}

// 垿 has the meanings of the character that it refers to.
TEST(ChineseSide, GivesACommonEnglishWordNoRareCharacterThatHasNothingElse) {
  const auto pairs = [](const std::u16string& english, std::uint32_t rank) {
    const ChineseEntry character{u"垿", {{english, 1, 0, GlossValue::kPart}}};
    return texts(addChineseSide(collect({entry("order", "n. 次序", true, rank)}),
                                {{character}, {}, {{u"垿", 3'001}}}))
        .size();
  };
  EXPECT_EQ(pairs(u"order", 5'000), 1U);
  EXPECT_EQ(pairs(u"order", 5'001), 2U);
  EXPECT_EQ(pairs(u"in order", 5'000), 2U);
}

TEST(ChineseSide, LeavesNoCommonChineseWordWithoutARow) {
  const Vocabulary all = wordsForHit(5'000, 20'000);
  EXPECT_EQ(texts(all).size(), 13U);
  for (const auto& pair : all.pairs) {
    EXPECT_LT(pair.position, dictionary::Pair::kFirstExplanation);
  }
  const auto others = texts(addChineseSide(collect({entry("hit", "v. 打", true, 50)}),
                                           twelveWords({u"hit", u"strike"}, 20'000)));
  EXPECT_EQ(std::ranges::count_if(others, [](auto& pair) { return pair.starts_with(u"hit=打"); }),
            9);
}

TEST(ChineseSide, GivesACommonChineseWordNoAbbreviationThatReadsAsAnother) {
  const std::vector<Gloss> glosses = {{u"IT", 1, 0, GlossValue::kPair},
                                      {u"knowledge in computers", 3, 0, GlossValue::kExplanation}};
  const auto pairs = texts(addChineseSide(collect({entry("it", "pron. 它", true, 9)}),
                                          {{{u"信息", glosses}}, {}, {{u"信息", 20'000}}}));
  EXPECT_EQ(pairs, (std::vector<std::u16string>{u"it=它", u"knowledge in computers=信息"}));
}

}  // namespace
