#include "dictionary/arrange/vocabulary.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "dictionary/translation/entry.h"

namespace {

using dictionary::Entry;
using dictionary::Pair;
using dictionary::PairCollector;
using dictionary::Tier;
using dictionary::Vocabulary;

Entry entry(const std::string& word, const std::string& translation, bool important = false) {
  std::optional<Entry> extracted = dictionary::extractEntry({word, translation, important});
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
  EXPECT_EQ(tierOf(vocabulary, u"苹果"), Tier::kInflectedFirst);
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

}  // namespace
