// Which of a few pairs stay where English and Chinese blocks have a row or two each, so that every
// headword fills a block of its own.
#include "tests/unit/dictionary/arrange/block_packing_test.h"

namespace {

using namespace block_packing_test;
using Texts = std::vector<std::u16string>;

struct Row {
  std::u16string english;
  std::u16string chinese;
  Tier tier;
};

/// The chosen ones of these pairs, each as "english=chinese", by English headword. Among pairs of
/// equal tier the earlier ones are more valuable.
Texts keptOf(const std::vector<Row>& rows, const LookupLimits& limits) {
  dictionary::PairList list;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    list.addPair(list.addHeadword({.word = rows[i].english}), rows[i].chinese, rows[i].tier, i);
  }
  const Vocabulary vocabulary = std::move(list).finish();
  const std::vector<bool> kept = choosePairs(vocabulary, limits);
  Texts texts;
  for (std::size_t i = 0; i < kept.size(); ++i) {
    if (!kept[i]) continue;
    const Pair& pair = vocabulary.pairs[i];
    texts.push_back(vocabulary.english[pair.english] + u"=" + vocabulary.chinese[pair.chinese]);
  }
  std::ranges::sort(texts);
  return texts;
}

constexpr LookupLimits kTwoRows{.blockRows = 2};

// "a=甲" is the most valuable of the first block, but leaves "b" only an equivalent from the web.
TEST(ChoosePairs, TakesNoLessValuableTierWhereAnExchangeSuffices) {
  EXPECT_EQ(keptOf({{u"aa", u"丁", Tier::kFirst},
                    {u"bb", u"子", Tier::kFirst},
                    {u"a", u"甲", Tier::kOrdinary},
                    {u"a", u"乙", Tier::kOrdinary},
                    {u"b", u"甲", Tier::kOrdinary},
                    {u"b", u"乙", Tier::kWeb}},
                   kTwoRows),
            (Texts{u"a=乙", u"aa=丁", u"b=甲", u"bb=子"}));
}

// "a" has three equivalents and two rows; the first equivalent has its only row as that of "b".
TEST(ChoosePairs, CountsNoPairBeyondTheReachOfAChineseSearchForItsEnglishWord) {
  EXPECT_EQ(keptOf({{u"b", u"甲", Tier::kFirst},
                    {u"b", u"丁", Tier::kOrdinary},
                    {u"a", u"甲", Tier::kOrdinary},
                    {u"a", u"乙", Tier::kOrdinary},
                    {u"a", u"丙", Tier::kOrdinary}},
                   {.blockRows = 2, .maxChineseRows = 1}),
            (Texts{u"a=丙", u"a=乙", u"b=丁", u"b=甲"}));
}

// "b=甲" is more valuable than "b=乙", but the block of 甲 is full.
TEST(ChoosePairs, TakesALessValuablePairBeforeAChineseHeadwordCrossesABlock) {
  EXPECT_EQ(keptOf({{u"aa", u"丁", Tier::kFirst},
                    {u"bb", u"子", Tier::kFirst},
                    {u"a", u"甲", Tier::kOrdinary},
                    {u"b", u"甲", Tier::kOrdinary},
                    {u"b", u"乙", Tier::kWeb}},
                   kTwoRows),
            (Texts{u"a=甲", u"aa=丁", u"b=乙", u"bb=子"}));
}

// Without "b=甲", no equivalent from the web would be needed.
TEST(ChoosePairs, GivesUpNoMoreValuablePairWhereLessValuableOnesFit) {
  EXPECT_EQ(keptOf({{u"aa", u"丁", Tier::kFirst},
                    {u"ab", u"己", Tier::kFirst},
                    {u"cc", u"子", Tier::kFirst},
                    {u"b", u"甲", Tier::kFirst},
                    {u"a", u"甲", Tier::kOrdinary},
                    {u"b", u"乙", Tier::kOrdinary},
                    {u"c", u"丙", Tier::kOrdinary},
                    {u"a", u"丙", Tier::kWeb},
                    {u"c", u"乙", Tier::kWeb}},
                   {.blockRows = 2, .maxRows = 6}),
            (Texts{u"a=丙", u"aa=丁", u"ab=己", u"b=甲", u"c=乙", u"cc=子"}));
}

// The first English block has no row for "b=乙", which must not keep "c=乙" from its Chinese row.
TEST(ChoosePairs, LeavesNoPairOutForOneThatItsEnglishBlockLeavesOut) {
  EXPECT_EQ(keptOf({{u"a", u"丁", Tier::kImportant},
                    {u"b", u"甲", Tier::kImportant},
                    {u"b", u"乙", Tier::kImportant},
                    {u"f", u"子", Tier::kFirst},
                    {u"c", u"乙", Tier::kFirst},
                    {u"c", u"丙", Tier::kOrdinary},
                    {u"cc", u"八", Tier::kOrdinary},
                    {u"ff", u"丙", Tier::kOrdinary},
                    {u"f", u"乙", Tier::kOrdinary}},
                   kTwoRows),
            (Texts{u"a=丁", u"b=甲", u"c=丙", u"c=乙", u"f=子", u"ff=丙"}));
}

}  // namespace
