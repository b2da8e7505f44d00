#include "dictionary/arrange/pair_collector.h"

#include "tests/unit/dictionary/arrange/pair_collector_test.h"

namespace {

using namespace pair_collector_test;

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
  EXPECT_EQ(tierOf(vocabulary, u"珠算"), Tier::kWebFirst);
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

TEST(PairCollector, FollowsEveryReferenceToItsFirstFourPairs) {
  const Vocabulary vocabulary = collect({entry("both", "n. 同“one”；同“two”"),
                                         entry("one", "n. 甲一, 甲二, 甲三, 甲四, 甲五"),
                                         entry("two", "n. 乙一, 乙二, 乙三, 乙四, 乙五")});
  EXPECT_EQ(valued(vocabulary, u"both"),
            (Texts{u"甲一", u"甲二", u"甲三", u"甲四", u"乙一", u"乙二", u"乙三", u"乙四"}));
}

// "leucaemia | n. 同“leukemia”\n[网络] 白血病"
TEST(PairCollector, FollowsReferencesBesideWhatIsFromTheWeb) {
  const Vocabulary vocabulary = collect(
      {entry("leucaemia", "n. 同“leukemia”\\n[网络] 白血病"), entry("leukemia", "n. 白血球过多症"),
       entry("wake", "v. 唤醒"), entry("woke up", "na. 同“wake”；叫醒")});
  EXPECT_EQ(texts(vocabulary),
            (std::vector<std::u16string>{u"leucaemia=白血病", u"leucaemia=白血球过多症",
                                         u"leukemia=白血球过多症", u"wake=唤醒", u"woke up=叫醒"}));
  EXPECT_EQ(pairOf(vocabulary, u"leucaemia", u"白血球过多症").tier, Tier::kFirst);
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

// One can point at a word, but not at a phrase.
TEST(PairCollector, RatesAWordAbovePhrases) {
  const Vocabulary vocabulary =
      collect({entry("light-year", "n. 光年"), entry("light well", "天井")});
  EXPECT_EQ(tierOf(vocabulary, u"光年"), Tier::kFirst);
  EXPECT_EQ(tierOf(vocabulary, u"天井"), Tier::kFirstOfPhrase);
}

// "Malachi | n. 玛拉基(希伯来先知), <<玛拉基书>>"
TEST(PairCollector, RatesATitleAsAFirstEquivalent) {
  const Vocabulary vocabulary =
      collect({entry("Malachi", "n. 玛拉基(希伯来先知), 先知, <<玛拉基书>>")});
  EXPECT_EQ(tierOf(vocabulary, u"玛拉基书"), Tier::kFirst);
  EXPECT_EQ(tierOf(vocabulary, u"先知"), Tier::kOrdinary);
}

// More than a sort without order among equals leaves in their places.
TEST(PairCollector, SpellsAWordAsTheFirstOfManySpellings) {
  std::vector<Entry> entries;
  for (unsigned bits = 37; bits < 37 + 20; ++bits) {
    std::string word = "abcdef";
    for (unsigned i = 0; i < 6; ++i) {
      if ((bits >> i & 1U) != 0) word[i] = static_cast<char>(word[i] - 'a' + 'A');
    }
    entries.push_back(entry(word, "n. 字母"));
  }
  EXPECT_EQ(collect(entries).english, Texts{u"AbCdeF"});
}

TEST(PairCollector, KeepsTheRanksOfHeadwords) {
  const Vocabulary vocabulary =
      collect({entry("zoo", "n. 动物园", true, 300), entry("ant", "n. 蚂蚁"),
               entry("Zoo", "n. 园", true, 200)});
  EXPECT_EQ(vocabulary.ranks, (std::vector<std::uint32_t>{0, 200}));
}

TEST(PairCollector, TakesRankZeroForNone) {
  const auto ranks = [](std::uint32_t first, std::uint32_t second) {
    return collect({entry("zoo", "n. 动物园", true, first), entry("Zoo", "n. 园", true, second)})
        .ranks;
  };
  EXPECT_EQ(ranks(0, 200), std::vector<std::uint32_t>{200});
  EXPECT_EQ(ranks(200, 0), std::vector<std::uint32_t>{200});
  EXPECT_EQ(ranks(0, 0), std::vector<std::uint32_t>{0});
}

TEST(PairCollector, KeepsTheRankOfAReference) {
  const Vocabulary vocabulary = collect({entry("equaliser", "=equalizer", true, 7'000),
                                         entry("equalizer", "n. 均衡器", true, 9'000)});
  EXPECT_EQ(vocabulary.ranks, (std::vector<std::uint32_t>{7'000, 9'000}));
}

}  // namespace
