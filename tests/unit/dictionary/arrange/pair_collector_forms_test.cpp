// Forms of words, and what they take over from their lemma.
#include "tests/unit/dictionary/arrange/pair_collector_test.h"

namespace {

using namespace pair_collector_test;

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

// "founded" is a form of "found", which is itself one of "find".
TEST(PairCollector, TakesAFormOfTwoWordsForThatOfTheFirst) {
  const Entry found = entry("found", "vt. 建立", true, 0, "d:founded");
  const Entry founder = entry("founder", "vi. 沉没", true, 0, "d:founded");
  EXPECT_EQ(valued(collect({found, founder}), u"founded"), (Texts{u"建立", u"found的过去分词"}));
  EXPECT_EQ(valued(collect({founder, found}), u"founded"), (Texts{u"沉没", u"founder的过去分词"}));
  const Entry form = entry("found", "vt. 建立", true, 0, "0:find/1:pd/d:founded");
  EXPECT_EQ(valued(collect({form}), u"founded"), Texts());
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

// The best rank and any sign of importance count, whichever spelling the source lists last.
TEST(PairCollector, RatesALemmaByTheBestOfItsSpellings) {
  const Entry polished = entry("polished", "a. 优美的", true, 20'000, "0:polish/1:p");
  const Entry verb = entry("polish", "vt. 磨光, 擦亮", true, 2'000);
  const Entry name = entry("Polish", "n. 波兰语");
  for (const auto& lemmas : {std::vector{verb, name}, std::vector{name, verb}}) {
    const Vocabulary vocabulary = collect({polished, lemmas[0], lemmas[1]});
    EXPECT_EQ(valued(vocabulary, u"polished"),
              (Texts{u"优美的", u"polish的过去式", u"磨光", u"擦亮"}));
    const Vocabulary went =
        collect({entry("polishing", "polish的现在分词, 抛光"), lemmas[0], lemmas[1]});
    EXPECT_EQ(pairOf(went, u"polishing", u"磨光").tier, Tier::kImportant) << "of an important word";
  }
}

// "kudos | 0:kudo", without the letter of a form.
TEST(PairCollector, AddsNoNoteOnAFormThatIsNotNamed) {
  const Vocabulary vocabulary = collect(
      {entry("kudos", "n. 荣誉", false, 0, "0:kudo"), entry("kudo", "n. 声誉", true, 4000)});
  EXPECT_EQ(valued(vocabulary, u"kudos"), (Texts{u"声誉", u"荣誉"}));
}

TEST(PairCollector, PutsTheNoteOnAFormBeforeWhatItTakesOver) {
  const Vocabulary vocabulary = collect({entry("asked", "n. 卖方要价", false, 0, "0:ask/1:p"),
                                         entry("ask", "vt. 问, 要求", true, 121)});
  EXPECT_EQ(pairOf(vocabulary, u"asked", u"卖方要价").position, 0U);
  EXPECT_EQ(pairOf(vocabulary, u"asked", u"ask的过去式").position, 1U);
  EXPECT_EQ(pairOf(vocabulary, u"asked", u"问").position, 2U);
  EXPECT_EQ(pairOf(vocabulary, u"asked", u"要求").position, 3U);
}

TEST(PairCollector, TakesNoWebEquivalentOfARareWordOverForItsForm) {
  const Vocabulary vocabulary =
      collect({entry("blog", "[网络] 博客"), entry("blogs", "", false, 0, "0:blog/1:s")});
  EXPECT_EQ(texts(vocabulary), (Texts{u"blog=博客", u"blogs=blog的复数"}));
}

}  // namespace
