#include "dictionary/translation/supplement.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "dictionary/arrange/senses.h"
#include "dictionary/translation/entry.h"
#include "text/utf.h"

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

// A text that the parser refuses would leave its word without a row.
TEST(Supplement, HasTextsThatTheParserTakesWhole) {
  for (const auto table : {dictionary::supplements(), dictionary::corrections()}) {
    for (const dictionary::Supplement& one : table) {
      const auto entry = dictionary::extractEntry({text::toUtf8(one.word), ""});
      ASSERT_TRUE(entry) << text::toUtf8(one.word);
      EXPECT_FALSE(entry->lines.empty()) << text::toUtf8(one.word);
      for (const auto& line : entry->lines) {
        EXPECT_FALSE(line.pieces.empty()) << text::toUtf8(one.word);
        for (const auto& piece : line.pieces) {
          EXPECT_EQ(piece.equivalent.fault, dictionary::PieceFault::kNone)
              << text::toUtf8(one.word);
        }
      }
    }
  }
}

// A table whose order is broken finds some of its words and not others.
TEST(Supplement, FindsEveryWordWithoutRegardToCase) {
  for (const std::u16string_view word : {u"adml", u"Hobbit", u"I've", u"PATIO", u"you'll"}) {
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

// "brownian | a. 苏格兰的植物学家Robert Brown 的", "melba | 梅尔巴(女子名) Nellie
// 内利梅抱(1861-1931)澳大利亚花腔女高音歌唱家", "zon | n. [暗黑破坏神]见"ama"": what the source has
// is an equivalent, so that no supplement would be asked for.
TEST(Corrections, TakeThePlaceOfADescription) {
  EXPECT_EQ(senses("brownian", "a. 苏格兰的植物学家Robert Brown 的"), (Words{u"布朗的"}));
  EXPECT_EQ(senses("melba", "梅尔巴(女子名) Nellie 内利梅抱(1861-1931)澳大利亚花腔女高音歌唱家"),
            (Words{u"梅尔巴"}));
  EXPECT_EQ(senses("pickwick", "n. Dickens 著 Pickwick Papers 中的主角"), (Words{u"匹克威克"}));
  EXPECT_EQ(senses("largemouth", "bass,large-mouthed[-maJTd](black)bass[鱼]黑鲈"),
            (Words{u"大口黑鲈"}));
  EXPECT_EQ(senses("powerpc", "n. IBM和Apple公司联合生产的个人台式机"),
            (Words{u"PowerPC微处理器"}));
  EXPECT_EQ(senses("unpredictably", "adv. 无法预言地）；不可预见地（不能预料地"),
            (Words{u"无法预料地", u"不可预见地"}));
  EXPECT_EQ(senses("zon", "n. [暗黑破坏神]见\"ama\""), (Words{u"亚马逊"}));
}

// 兆赫 is the megahertz; 甲福明 and 二甲双胍 are two names of one drug.
TEST(Corrections, TakeThePlaceOfAWrongEquivalent) {
  EXPECT_EQ(senses("terahertz", "[电] 兆赫"), (Words{u"太赫兹"}));
  EXPECT_EQ(senses("metformin", "甲福明二甲双胍(抗糖尿病药、降血糖药)"),
            (Words{u"二甲双胍", u"甲福明"}));
  const Words rest = senses("rest", "n. 休息");
  for (const std::u16string_view word : {u"休息", u"稍息", u"长眠", u"使休息"}) {
    EXPECT_EQ(std::ranges::count(rest, word), 1);
  }
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

// So that no equivalent of theirs is left out where room is short.
TEST(Supplement, MakesAWordImportant) {
  for (const auto table : {dictionary::supplements(), dictionary::corrections()}) {
    for (const dictionary::Supplement& one : table) {
      EXPECT_TRUE(dictionary::extractEntry({text::toUtf8(one.word), ""})->important);
    }
  }
  EXPECT_FALSE(dictionary::extractEntry({"heat", "n. 热"})->important);
}

}  // namespace
