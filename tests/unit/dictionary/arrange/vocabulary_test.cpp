#include "dictionary/arrange/vocabulary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "dictionary/translation/entry.h"

namespace {

using dictionary::Entry;
using dictionary::Pair;
using dictionary::PairCollector;
using dictionary::Tier;
using dictionary::Vocabulary;

Entry entry(const std::string& word, const std::string& translation, bool important = false,
            std::uint32_t rank = 0, const std::string& exchange = "") {
  std::optional<Entry> extracted =
      dictionary::extractEntry({word, translation, important, rank, exchange});
  EXPECT_TRUE(extracted.has_value());
  return std::move(*extracted);
}

Vocabulary collect(const std::vector<Entry>& entries) {
  PairCollector collector;
  for (const Entry& one : entries) collector.add(one);
  return std::move(collector).finish();
}

/// "english=chinese" of every pair, in order.
std::vector<std::u16string> texts(const Vocabulary& vocabulary) {
  std::vector<std::u16string> result;
  for (const Pair& pair : vocabulary.pairs) {
    result.push_back(vocabulary.english[pair.english] + u"=" + vocabulary.chinese[pair.chinese]);
  }
  return result;
}

Tier tierOf(const Vocabulary& vocabulary, std::u16string_view chinese) {
  for (const Pair& pair : vocabulary.pairs) {
    if (vocabulary.chinese[pair.chinese] == chinese) return pair.tier;
  }
  ADD_FAILURE() << "no such pair";
  return Tier::kWeb;
}

TEST(PairCollector, ReturnsDistinctPairsInTheTextOrder) {
  const Vocabulary vocabulary = collect(
      {entry("zoo", "n. 动物园"), entry("Bit", "n. 位, 比特\\n[计] 位"), entry("a", "art. 一")});
  EXPECT_EQ(texts(vocabulary),
            (std::vector<std::u16string>{u"a=一", u"Bit=比特", u"Bit=位", u"zoo=动物园"}));
}

TEST(PairCollector, ReturnsTheNumberOfPairsAdded) {
  PairCollector collector;
  EXPECT_EQ(collector.add(entry("bit", "位, 比特, 位")), 2U);
  EXPECT_EQ(collector.add(entry("bleaky", "= bleak")), 0U);
}

TEST(PairCollector, JoinsWordsThatDifferInCaseOnly) {
  const Vocabulary vocabulary =
      collect({entry("Polish", "波兰语, A型"), entry("polish", "擦亮, a型, 波兰语")});
  EXPECT_EQ(vocabulary.english, (std::vector<std::u16string>{u"Polish"}));
  EXPECT_EQ(texts(vocabulary).size(), 3U);
}

TEST(PairCollector, RatesPairs) {
  const Vocabulary vocabulary = collect({entry("data", "n. 数据, 资料\\n[网络] 数值；数码", true),
                                         entry("abacus", "n. 算盘, 顶板\\n[网络] 珠算"),
                                         entry("apples", "(apple 的复数) n. 苹果, 苹果树"),
                                         entry("Rheic", "[网络] 瑞克洋；古洋"),
                                         entry("bati", "n. (Bati)人名；(法)巴蒂；(意)巴提")});
  EXPECT_EQ(tierOf(vocabulary, u"数据"), Tier::kImportantFirst);
  EXPECT_EQ(tierOf(vocabulary, u"资料"), Tier::kImportant);
  EXPECT_EQ(tierOf(vocabulary, u"数值"), Tier::kWebFirst);
  EXPECT_EQ(tierOf(vocabulary, u"数码"), Tier::kWeb);
  EXPECT_EQ(tierOf(vocabulary, u"算盘"), Tier::kFirst);
  EXPECT_EQ(tierOf(vocabulary, u"顶板"), Tier::kOrdinary);
  EXPECT_EQ(tierOf(vocabulary, u"苹果"), Tier::kFirst);
  EXPECT_EQ(tierOf(vocabulary, u"苹果树"), Tier::kInflected);
  EXPECT_EQ(tierOf(vocabulary, u"瑞克洋"), Tier::kOnly);
  EXPECT_EQ(tierOf(vocabulary, u"古洋"), Tier::kWeb);
  EXPECT_EQ(tierOf(vocabulary, u"巴蒂"), Tier::kOnly);
  EXPECT_EQ(tierOf(vocabulary, u"巴提"), Tier::kName);
}

TEST(PairCollector, RatesANameInCommonUseAsImportant) {
  const Vocabulary vocabulary = collect({entry("alexander", "n. 亚历山大（男子名）", true)});
  EXPECT_EQ(tierOf(vocabulary, u"亚历山大"), Tier::kImportantFirst);
}

// james "n. 詹姆斯（姓氏, 男子名）；[圣]《雅各书》" had 雅各书 only.
TEST(PairCollector, RatesNotedNamesOfAnImportantWordLikeItsFurtherSenses) {
  const Vocabulary vocabulary = collect(
      {entry("james", "n. 詹姆斯（姓氏, 男子名）；[圣]《雅各书》", true, 981),
       entry("rarely", "n. 少见\\n[人名] 雷利", false),
       entry("many", "n. 多\\nn. (Many)人名；(法)马尼；(意)马纳；(英)梅尼；(德)曼尼", true)});
  EXPECT_EQ(tierOf(vocabulary, u"詹姆斯"), Tier::kImportant);
  EXPECT_EQ(tierOf(vocabulary, u"雷利"), Tier::kName);
  EXPECT_EQ(tierOf(vocabulary, u"梅尼"), Tier::kImportant);
  EXPECT_EQ(tierOf(vocabulary, u"曼尼"), Tier::kName);
}

/// The Chinese texts of a headword, in the order of their value.
std::vector<std::u16string> valued(const Vocabulary& vocabulary, std::u16string_view english) {
  std::vector<Pair> pairs;
  for (const Pair& pair : vocabulary.pairs) {
    if (vocabulary.english[pair.english] == english) pairs.push_back(pair);
  }
  std::ranges::stable_sort(pairs, {},
                           [](const Pair& pair) { return std::tuple(pair.tier, pair.position); });
  std::vector<std::u16string> texts;
  for (const Pair& pair : pairs) texts.push_back(vocabulary.chinese[pair.chinese]);
  return texts;
}

using Texts = std::vector<std::u16string>;

// The first three of the verb's, not of the noun's; it comes later in the source.
TEST(PairCollector, GivesAFormTheFirstEquivalentsOfItsLemma) {
  const Vocabulary vocabulary =
      collect({entry("taken", "take的过去分词", true, 32667, "0:take/1:d/d:taken"),
               entry("take", "n. 捕获量\\nvt. 拿, 取, 抓, 占领\\nvi. 获得", true, 51)});
  EXPECT_EQ(valued(vocabulary, u"taken"), (Texts{u"take的过去分词", u"拿", u"取", u"抓"}));
  EXPECT_EQ(tierOf(vocabulary, u"take的过去分词"), Tier::kImportantFirst);
  EXPECT_EQ(texts(vocabulary).size(), 10U);
}

// "went" has no sign of importance itself.
TEST(PairCollector, TakesAFormForAsImportantAsItsLemma) {
  const Vocabulary vocabulary =
      collect({entry("went", "go的过去式", false, 0, "0:go/1:p"),
               entry("go", "vi. 去, 走, 达到, 运转", true, 37),
               entry("abided", "abide的过去式和过去分词"), entry("abide", "vt. 容忍, 忍受, 等候")});
  const auto tier = [&](std::u16string_view english, std::u16string_view chinese) {
    for (const Pair& pair : vocabulary.pairs) {
      if (vocabulary.english[pair.english] == english &&
          vocabulary.chinese[pair.chinese] == chinese) {
        return pair.tier;
      }
    }
    return Tier::kWeb;
  };
  EXPECT_EQ(valued(vocabulary, u"went"), (Texts{u"去", u"走", u"达到", u"go的过去式"}));
  EXPECT_EQ(tier(u"went", u"去"), Tier::kImportantFirst);
  EXPECT_EQ(tier(u"went", u"走"), Tier::kImportant);
  EXPECT_EQ(valued(vocabulary, u"abided"), (Texts{u"abide的过去式和过去分词", u"容忍", u"忍受"}));
  EXPECT_EQ(tier(u"abided", u"容忍"), Tier::kFirst);
  EXPECT_EQ(tier(u"abided", u"忍受"), Tier::kInflected);
}

TEST(PairCollector, TakesAFormThatGivesItsOwnMeaningForAsImportantAsItsLemma) {
  const Entry goes = entry("goes", "v. 前进；行走（go的第三人称单数形式）");
  const Vocabulary common = collect({goes, entry("go", "vi. 去", true, 37)});
  EXPECT_EQ(tierOf(common, u"前进"), Tier::kImportantFirst);
  EXPECT_EQ(tierOf(common, u"行走"), Tier::kImportant);
  EXPECT_EQ(texts(common).size(), 3U) << "it takes nothing over";
  const Vocabulary rare = collect({goes, entry("go", "vi. 去")});
  EXPECT_EQ(tierOf(rare, u"前进"), Tier::kFirst);
  EXPECT_EQ(tierOf(rare, u"行走"), Tier::kInflected);
}

TEST(PairCollector, GivesAFormOfTwoPartsOfSpeechBoth) {
  const Vocabulary vocabulary =
      collect({entry("hand", "n. 手, 爪, 指针\\nvt. 交给, 支持", true, 163),
               entry("hands", "n. 拥有, 所有\\n[计] 动手", false, 0, "0:hand/1:s3")});
  EXPECT_EQ(valued(vocabulary, u"hands"),
            (Texts{u"hand的复数和第三人称单数", u"手", u"爪", u"交给", u"拥有", u"所有", u"动手"}));
}

// "asked n. 卖方要价", "evening n. 傍晚, 晚间", "felt n. 毛毡 … feel的过去式和过去分词".
TEST(PairCollector, GivesItToAFormWhoseOwnMeaningHidesItsCommonUse) {
  const Vocabulary vocabulary =
      collect({entry("asked", "n. 卖方要价", false, 0, "0:ask/1:pd"),
               entry("ask", "vt. 问, 要求, 邀请", true, 121),
               entry("evening", "n. 傍晚, 晚间", true, 651, "1:i/0:even"),
               entry("even", "a. 平坦的, 相等的\\nvt. 使平坦, 使相等", true, 107),
               entry("used", "a. 使用过的, 二手的", true, 641, "0:use/1:dp"),
               entry("use", "n. 使用, 习惯\\nvt. 使用, 利用, 运用", true, 87),
               entry("felt", "n. 毛毯, 毡\\nfeel的过去式和过去分词", true, 100, "0:feel/1:pd"),
               entry("feel", "vt. 感觉, 觉得, 触摸", true, 134)});
  EXPECT_EQ(valued(vocabulary, u"asked"),
            (Texts{u"ask的过去式和过去分词", u"问", u"要求", u"邀请", u"卖方要价"}));
  EXPECT_EQ(valued(vocabulary, u"evening"), (Texts{u"傍晚", u"晚间"}));
  EXPECT_EQ(valued(vocabulary, u"used"),
            (Texts{u"使用过的", u"二手的", u"use的过去式和过去分词", u"使用", u"利用", u"运用"}));
  EXPECT_EQ(valued(vocabulary, u"felt").size(), 6U) << "the translation names the form";
}

// "outs n. 未现赢张": "out" has no noun. "abandons" has what the form means already.
TEST(PairCollector, LeavesOtherFormsAsTheyAre) {
  const Vocabulary vocabulary = collect(
      {entry("outs", "n. 未现赢张", false, 0, "0:out/1:s"),
       entry("out", "a. 外面的\\nadv. 在外", true, 62),
       entry("abandons", "v. 离弃( abandon的第三人称单数 ); 放弃", false, 0, "0:abandon/1:3"),
       entry("abandon", "vt. 遗弃, 沉溺", true, 3000), entry("carven", "caeve的过去分词")});
  EXPECT_EQ(valued(vocabulary, u"outs"), (Texts{u"未现赢张"}));
  EXPECT_EQ(valued(vocabulary, u"abandons"), (Texts{u"离弃", u"放弃"}));
  EXPECT_EQ(valued(vocabulary, u"carven"), (Texts{u"caeve的过去分词"})) << "no such lemma";
}

// action "d:actioned/i:actioning/p:actioned/s:actions"; "actions" has an entry.
TEST(PairCollector, MakesEntriesOfTheFormsOfImportantWordsThatHaveNone) {
  const std::string forms = "d:actioned/i:actioning/p:actioned/s:actions";
  const Vocabulary vocabulary = collect(
      {entry("action", "n. 行动, 作用\\nvt. 对…起诉", true, 340, forms),
       entry("actions", "n. 动作", true, 0, "0:action/1:s"),
       entry("rare", "vt. 稀", false, 0, "d:rared"), entry("empty", "", true, 0, "d:emptied")});
  EXPECT_EQ(valued(vocabulary, u"actioned"), (Texts{u"对…起诉", u"action的过去式和过去分词"}));
  EXPECT_EQ(valued(vocabulary, u"actioning"), (Texts{u"对…起诉", u"action的现在分词"}));
  EXPECT_EQ(tierOf(vocabulary, u"action的现在分词"), Tier::kImportant);
  EXPECT_EQ(valued(vocabulary, u"rared"), Texts()) << "no sign of importance";
  EXPECT_EQ(std::ranges::count(vocabulary.english, u"actions"), 1);
  EXPECT_EQ(std::ranges::count(vocabulary.english, u"emptied"), 0) << "nothing to take over";
}

TEST(PairCollector, FollowsAFormToALemmaThatIsAReference) {
  const Vocabulary vocabulary = collect({entry("randomised", "randomise的变形"),
                                         entry("randomise", "vt. [主英国英语]＝randomize"),
                                         entry("randomize", "vt. 随机化, 使随机化")});
  EXPECT_EQ(valued(vocabulary, u"randomised"), (Texts{u"randomise的变形", u"随机化", u"使随机化"}));
}

TEST(PairCollector, MakesAnEntryOfAFormWithoutAnyTranslation) {
  const Vocabulary vocabulary =
      collect({entry("sayed", "", false, 0, "0:say/1:p"), entry("say", "vt. 说, 讲", true, 31)});
  EXPECT_EQ(valued(vocabulary, u"sayed"), (Texts{u"说", u"say的过去式", u"讲"}));
}

TEST(PairCollector, PairsABareInflectedFormWithItsNote) {
  EXPECT_EQ(texts(collect({entry("backslidden", "(backslide 的过去分词)")})),
            (std::vector<std::u16string>{u"backslidden=backslide的过去分词"}));
}

TEST(PairCollector, FollowsReferences) {
  const Vocabulary vocabulary = collect(
      {entry("ground cloth", " = Groundsheet"), entry("groundsheet", "n. 防潮布, 铺地防潮布"),
       entry("costrel bottle", "[某]=costrel [参较 jug]"), entry("costrel", "壶, 罐, 瓶, 坛, 缸"),
       entry("loop one", "= loop two"), entry("loop two", "= loop one"),
       entry("odd", "= nothing known")});
  EXPECT_EQ(texts(vocabulary),
            (std::vector<std::u16string>{u"costrel=缸", u"costrel=罐", u"costrel=壶", u"costrel=瓶",
                                         u"costrel=坛", u"costrel bottle=罐", u"costrel bottle=壶",
                                         u"costrel bottle=瓶", u"costrel bottle=坛",
                                         u"ground cloth=防潮布", u"ground cloth=铺地防潮布",
                                         u"groundsheet=防潮布", u"groundsheet=铺地防潮布"}));
  EXPECT_EQ(tierOf(vocabulary, u"铺地防潮布"), Tier::kOrdinary);
}

Pair pairOf(const Vocabulary& vocabulary, std::u16string_view english,
            std::u16string_view chinese) {
  for (const Pair& pair : vocabulary.pairs) {
    if (vocabulary.english[pair.english] == english &&
        vocabulary.chinese[pair.chinese] == chinese) {
      return pair;
    }
  }
  ADD_FAILURE() << "no such pair";
  return {};
}

TEST(PairCollector, GivesEqualPairsTheBestTierAndPosition) {
  const Vocabulary tier = collect({entry("bit", "n. 位"), entry("Bit", "n. 甲, 位", true)});
  EXPECT_EQ(pairOf(tier, u"bit", u"位").tier, Tier::kImportant);
  const Vocabulary position = collect({entry("bit", "n. 甲, 乙, 位"), entry("Bit", "n. 丙, 位")});
  EXPECT_EQ(pairOf(position, u"bit", u"位").position, 1U);
}

TEST(PairCollector, GivesTheGreatestPositionToAllThatFollow) {
  std::string translation = "n. ";
  for (int i = 0; i < 300; ++i) translation += "第" + std::to_string(i) + "号, ";
  const Vocabulary vocabulary = collect({entry("number", translation)});
  EXPECT_EQ(pairOf(vocabulary, u"number", u"第254号").position, 254U);
  EXPECT_EQ(pairOf(vocabulary, u"number", u"第255号").position, 255U);
  EXPECT_EQ(pairOf(vocabulary, u"number", u"第256号").position, 255U);
  EXPECT_EQ(pairOf(vocabulary, u"number", u"第299号").position, 255U);
}

TEST(PairCollector, CountsANoteAsAPair) {
  PairCollector collector;
  EXPECT_EQ(collector.add(entry("backslidden", "(backslide 的过去分词)")), 1U);
  EXPECT_EQ(collector.add(entry("sayed", "", false, 0, "0:say/1:p")), 1U);
}

TEST(PairCollector, RatesANoteByItsWord) {
  const Vocabulary vocabulary = collect({entry("backslidden", "(backslide 的过去分词)", true),
                                         entry("bewept", "(beweep 的过去分词)")});
  EXPECT_EQ(tierOf(vocabulary, u"backslide的过去分词"), Tier::kImportantFirst);
  EXPECT_EQ(tierOf(vocabulary, u"beweep的过去分词"), Tier::kFirst);
}

// "choses | v. choose 的过去式, 选择", "asked | n. 卖方要价"
TEST(PairCollector, RatesTheFurtherEquivalentsOfAForm) {
  const Vocabulary vocabulary = collect({entry("choses", "v. choose的过去式, 选择, 挑选"),
                                         entry("asked", "n. 卖方要价, 要价", false, 0, "0:ask/1:p"),
                                         entry("chose", "n. 物体, 动产")});
  EXPECT_EQ(tierOf(vocabulary, u"选择"), Tier::kFirst);
  EXPECT_EQ(tierOf(vocabulary, u"挑选"), Tier::kInflected);
  EXPECT_EQ(tierOf(vocabulary, u"要价"), Tier::kInflected);
  EXPECT_EQ(tierOf(vocabulary, u"动产"), Tier::kOrdinary);
}

TEST(PairCollector, FindsALemmaWithoutRegardToCase) {
  const Vocabulary vocabulary =
      collect({entry("kudos", "kudo的复数"), entry("Kudo", "n. 荣誉, 声誉")});
  EXPECT_EQ(valued(vocabulary, u"kudos"), (Texts{u"kudo的复数", u"荣誉", u"声誉"}));
}

TEST(PairCollector, GivesAFormNoFormOfItsLemma) {
  const Vocabulary vocabulary =
      collect({entry("sawed", "saw的过去式", true), entry("saw", "锯, see的过去式, 锯开")});
  EXPECT_EQ(valued(vocabulary, u"sawed"), (Texts{u"saw的过去式", u"锯", u"锯开"}));
}

TEST(PairCollector, LooksForThePartOfSpeechAmongFortyEquivalents) {
  const auto taken = [](int nouns) {
    std::string translation = "n. ";
    for (int i = 0; i < nouns; ++i) translation += "第" + std::to_string(i) + "号, ";
    const Vocabulary vocabulary =
        collect({entry("taken", "take的过去分词"), entry("take", translation + "\\nvt. 拿")});
    return valued(vocabulary, u"taken");
  };
  EXPECT_EQ(taken(39), (Texts{u"take的过去分词", u"拿"}));
  EXPECT_EQ(taken(40), (Texts{u"take的过去分词", u"第0号", u"第1号"}));
}

TEST(PairCollector, GivesAFormWhatThereIsWithoutItsPartOfSpeech) {
  const Vocabulary vocabulary =
      collect({entry("lasers", "laser的复数"), entry("laser", "vt. 照射"),
               entry("outs", "", false, 0, "0:out/1:s"), entry("out", "a. 外面的", true, 62)});
  EXPECT_EQ(valued(vocabulary, u"lasers"), (Texts{u"laser的复数", u"照射"}));
  EXPECT_EQ(valued(vocabulary, u"outs"), (Texts{u"外面的", u"out的复数"}));
}

TEST(PairCollector, KeepsAnotherPartOfSpeechThatHasAPlace) {
  const Vocabulary vocabulary = collect({entry("hand", "n. 手\\nvt. 交给\\nn. 爪, 指针", true, 163),
                                         entry("hands", "", false, 0, "0:hand/1:s3")});
  EXPECT_EQ(valued(vocabulary, u"hands"),
            (Texts{u"手", u"hand的复数和第三人称单数", u"交给", u"爪"}));
}

TEST(PairCollector, TakesAnImportantFormForImportantWhateverItsLemma) {
  const Vocabulary vocabulary = collect(
      {entry("laden", "lade的过去分词", true), entry("lade", "vt. 装载, 汲取, 加负担, 舀出")});
  EXPECT_EQ(valued(vocabulary, u"laden"), (Texts{u"lade的过去分词", u"装载", u"汲取", u"加负担"}));
  EXPECT_EQ(pairOf(vocabulary, u"laden", u"加负担").tier, Tier::kImportant);
}

// A verb's single form has some 2/7 of its occurrences.
TEST(PairCollector, ComparesTheRanksOfAFormAndItsLemma) {
  const auto takes = [](std::uint32_t form, std::uint32_t lemma) {
    const Vocabulary vocabulary = collect({entry("asked", "n. 卖方要价", true, form, "0:ask/1:p"),
                                           entry("ask", "vt. 问", true, lemma)});
    return valued(vocabulary, u"asked").size() > 1;
  };
  EXPECT_FALSE(takes(350, 100));
  EXPECT_TRUE(takes(351, 100));
  EXPECT_FALSE(takes(350, 0)) << "0 is no rank";
}

// "kudos | 0:kudo", without the letter of a form.
TEST(PairCollector, AddsNoNoteOnAFormThatIsNotNamed) {
  const Vocabulary vocabulary = collect(
      {entry("kudos", "n. 荣誉", false, 0, "0:kudo"), entry("kudo", "n. 声誉", true, 4000)});
  EXPECT_EQ(valued(vocabulary, u"kudos"), (Texts{u"声誉", u"荣誉"}));
}

TEST(PairCollector, RatesAReferenceByItsWord) {
  const Vocabulary vocabulary =
      collect({entry("randomise", "=randomize", true), entry("randomized", "=randomize"),
               entry("randomize", "n. 甲, 乙, 丙\\nvt. 随机化, 使随机化, 打乱, 搞乱"),
               entry("randomised", "randomise的过去式")});
  EXPECT_EQ(pairOf(vocabulary, u"randomise", u"甲").tier, Tier::kImportantFirst);
  EXPECT_EQ(pairOf(vocabulary, u"randomise", u"乙").tier, Tier::kImportant);
  EXPECT_EQ(pairOf(vocabulary, u"randomized", u"甲").tier, Tier::kFirst);
  EXPECT_EQ(valued(vocabulary, u"randomised"), (Texts{u"随机化", u"randomise的过去式"}))
      << "its part of speech, and the value of the word that it is a form of";
}

TEST(PairCollector, FollowsNeitherNamesNorWhatIsFromTheWeb) {
  const Vocabulary vocabulary =
      collect({entry("abaci", "= abacus"), entry("abacused", "abacus的变形"),
               entry("abacus", "n. 算盘\\n[人名] 阿巴\\n[网络] 珠算；珠")});
  EXPECT_EQ(valued(vocabulary, u"abaci"), (Texts{u"算盘"}));
  EXPECT_EQ(valued(vocabulary, u"abacused"), (Texts{u"abacus的变形", u"算盘"}));
  EXPECT_EQ(valued(vocabulary, u"abacus").size(), 4U);
}

TEST(PairCollector, PutsTheNoteOnAFormBeforeWhatItTakesOver) {
  const Vocabulary vocabulary = collect({entry("asked", "n. 卖方要价", false, 0, "0:ask/1:p"),
                                         entry("ask", "vt. 问, 要求", true, 121)});
  EXPECT_EQ(pairOf(vocabulary, u"asked", u"卖方要价").position, 0U);
  EXPECT_EQ(pairOf(vocabulary, u"asked", u"ask的过去式").position, 1U);
  EXPECT_EQ(pairOf(vocabulary, u"asked", u"问").position, 2U);
  EXPECT_EQ(pairOf(vocabulary, u"asked", u"要求").position, 3U);
}

}  // namespace
