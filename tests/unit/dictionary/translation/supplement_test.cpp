#include "dictionary/translation/supplement.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dictionary/arrange/senses.h"
#include "dictionary/translation/entry.h"

namespace {

std::vector<std::u16string> equivalents(const std::string& word, const std::string& translation) {
  const auto entry = dictionary::extractEntry({word, translation});
  std::vector<std::u16string> words;
  for (const auto& line : entry.value_or(dictionary::Entry()).lines) {
    for (const auto& piece : line.pieces) {
      if (!piece.equivalent.word.empty()) words.push_back(piece.equivalent.word);
    }
  }
  return words;
}

using Words = std::vector<std::u16string>;

// The translations of the source, of which none can be used.
TEST(Supplement, TranslatesContractions) {
  EXPECT_EQ(equivalents("hasn't", " =has not"), (Words{u"没有", u"尚未", u"不曾"}));
  EXPECT_EQ(equivalents("wouldn't", " =would not").size(), 3U);
  EXPECT_EQ(equivalents("we're", " (we are 的常用口语形式)"), (Words{u"我们是"}));
  EXPECT_EQ(equivalents("we'll", " (we shall或 we will 的常用口语形式)").size(), 2U);
  EXPECT_EQ(equivalents("we've", " （尤当 have 为助动词时, we have 的常用口语形式）").size(), 2U);
  EXPECT_EQ(equivalents("I've", "（等于I have）"), (Words{u"我已经", u"我有"}));
  EXPECT_EQ(equivalents("mayn't", "(=may not)的缩写").size(), 2U);
  EXPECT_EQ(equivalents("oughtn't", "(=ought not)的缩写").size(), 2U);
  EXPECT_EQ(equivalents("y'all", ""), (Words{u"你们", u"你们大家"}));
}

TEST(Supplement, ComesBesideWhatIsFromTheWebAlone) {
  const std::string translation = "abbr. (=you will； you shall)\\n[网络] 你将；你应该";
  EXPECT_EQ(equivalents("you'll", translation), (Words{u"你将", u"你应该", u"你将", u"你会"}));
}

TEST(Supplement, ComesBesideAReferenceAlone) {
  EXPECT_EQ(equivalents("saith", "says的古体"), (Words{u"says的古体", u"说"}));
}

TEST(Supplement, DoesNotRefer) {
  const auto entry = dictionary::extractEntry({"hasn't", " =has not"});
  EXPECT_TRUE(entry->references.empty());
}

TEST(Supplement, LeavesWordsAloneThatHaveATranslation) {
  EXPECT_EQ(equivalents("you'll", "你将"), (Words{u"你将"}));
  EXPECT_EQ(equivalents("nonsense", "=none"), Words());
}

TEST(Supplement, DividesItsLines) {
  EXPECT_EQ(equivalents("antinomian", "a. 〈宗〉(基)"), (Words{u"反律法主义的", u"反律法主义者"}));
}

// A table whose order is broken finds some of its words and not others.
TEST(Supplement, FindsEveryWordWithoutRegardToCase) {
  for (const std::u16string_view word : {u"adml", u"Brownian", u"I've", u"PATIO", u"you'll"}) {
    EXPECT_FALSE(dictionary::supplementaryTranslation(word).empty());
  }
  EXPECT_TRUE(dictionary::supplementaryTranslation(u"patios").empty());
  EXPECT_TRUE(dictionary::supplementaryTranslation(u"").empty());
}

std::vector<std::u16string> senses(const std::string& word, const std::string& translation) {
  const auto entry = dictionary::extractEntry({word, translation});
  std::vector<std::u16string> words;
  for (const dictionary::Sense& sense : dictionary::sensesOf(*entry)) words.push_back(*sense.word);
  return words;
}

// The translations are those of the source.
TEST(Corrections, TakeThePlaceOfAnExpansionOrDescription) {
  EXPECT_EQ(senses("mustn't", "must not 之缩写"), (Words{u"不准", u"不得", u"不可"}));
  EXPECT_EQ(senses("doesn't", "aux. 表示否定"), (Words{u"不"}));
  EXPECT_EQ(senses("It's", "it is的缩写, it has的缩写"), (Words{u"它是", u"它有"}));
}

TEST(Corrections, AddAGivenNameToOtherMeanings) {
  EXPECT_EQ(senses("john", "n. 盥洗室, 厕所, 嫖客"), (Words{u"盥洗室", u"厕所", u"嫖客", u"约翰"}));
  const auto entry = dictionary::extractEntry({"John", "n. 厕所"});
  EXPECT_EQ(dictionary::sensesOf(*entry).back().kind, dictionary::SenseKind::kName);
}

TEST(Corrections, LeaveOtherWordsAlone) {
  EXPECT_EQ(senses("isn't", "不是"), (Words{u"不是"}));
  for (const std::u16string_view word : {u"", u"johns", u"its", u"zzz"}) {
    EXPECT_TRUE(dictionary::correctedTranslation(word).empty());
    EXPECT_TRUE(dictionary::missingGivenName(word).empty());
  }
}

// "unpredictably | unpredictable的变形"
TEST(Supplement, TranslatesWordsThatAreOnlyReferredToAnother) {
  EXPECT_EQ(equivalents("unpredictably", "unpredictable的变形"),
            (Words{u"unpredictable的变形", u"无法预料地", u"不可预见地"}));
}

}  // namespace
