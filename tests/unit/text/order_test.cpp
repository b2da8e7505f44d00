#include "text/order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/data/common_characters.h"
#include "tests/support/data/random_text.h"
#include "text/utf.h"

namespace {

using text::compare;
using text::compareUtf8;
using text::equal;
using text::foldCase;
using text::toUtf16;
using text::toUtf8;
using text::weight;

// Letters in both cases, their neighbours, Han with and without a rank, surrogates.
constexpr std::u16string_view kUnits =
    u"aAbZ@[{ÀàÞþ×÷ß'中做阿〇\uF900\u4DC0，Ж\uE000\uFFFD\xD83D\xDE00";
// The bytes of such texts, and what breaks them.
constexpr std::string_view kBytes = "aAbZÀà×÷中做阿\xEF\xA4\x80😀\xEF\xBF\xBD\x80\xC3\xE4\xF0\xFF";

int sign(int value) { return static_cast<int>(value > 0) - static_cast<int>(value < 0); }

bool isHan(char16_t unit) {
  return unit == 0x3007 || (unit >= 0x3400 && unit <= 0x4DBF) ||
         (unit >= 0x4E00 && unit <= 0x9FFF) || (unit >= 0xF900 && unit <= 0xFA6D) ||
         (unit >= 0xFA70 && unit <= 0xFAD9);
}

/// The order by its definition, to compare the quick one with.
int compareByWeights(std::u16string_view a, std::u16string_view b) {
  std::vector<std::uint32_t> weightsA(a.size());
  std::vector<std::uint32_t> weightsB(b.size());
  std::transform(a.begin(), a.end(), weightsA.begin(), weight);
  std::transform(b.begin(), b.end(), weightsB.begin(), weight);
  return static_cast<int>(weightsB < weightsA) - static_cast<int>(weightsA < weightsB);
}

TEST(FoldCase, FoldsAsciiAndLatin1LettersOnly) {
  for (std::uint32_t unit = 0; unit <= 0xFFFF; ++unit) {
    const bool letter =
        (unit >= 'A' && unit <= 'Z') || (unit >= 0xC0 && unit <= 0xDE && unit != 0xD7);
    ASSERT_EQ(foldCase(static_cast<char16_t>(unit)), letter ? unit + 0x20 : unit) << unit;
  }
}

TEST(ToLower, FoldsEveryUnit) {
  EXPECT_EQ(text::toLower(u""), u"");
  EXPECT_EQ(text::toLower(u"It's ÀÞ×ßÿ Ж 中A"), u"it's àþ×ßÿ Ж 中a");
}

TEST(Weight, IsTheFoldedCodeOutsideHan) {
  for (std::uint32_t code = 0; code <= 0xFFFF; ++code) {
    const auto unit = static_cast<char16_t>(code);
    if (!isHan(unit)) {
      ASSERT_EQ(weight(unit), foldCase(unit)) << code;
    }
  }
}

TEST(Weight, GivesEachHanCharacterARankOfItsOwn) {
  std::vector<std::uint32_t> weights;
  for (std::uint32_t code = 0; code <= 0xFFFF; ++code) {
    if (isHan(static_cast<char16_t>(code))) {
      weights.push_back(weight(static_cast<char16_t>(code)));
    }
  }
  std::sort(weights.begin(), weights.end());
  ASSERT_EQ(weights.size(), 28057U);
  for (std::size_t rank = 0; rank < weights.size(); ++rank) {
    ASSERT_EQ(weights[rank], 0x10000 + rank);
  }
}

// Databases are sorted by this order: one that differs anywhere makes them useless.
TEST(Weight, KeepsTheOrderOfExistingDatabases) {
  std::uint64_t hash = 14695981039346656037U;  // FNV-1a, 64 bits
  for (std::uint32_t code = 0; code <= 0xFFFF; ++code) {
    hash = (hash ^ weight(static_cast<char16_t>(code))) * 1099511628211U;
  }
  EXPECT_EQ(hash, 9836642206398924586U);
}

TEST(Weight, PutsZuoAfterEveryOtherCommonCharacter) {
  ASSERT_EQ(kCommonCharacters.size(), 6763U);
  for (const char16_t unit : kCommonCharacters) {
    ASSERT_TRUE(isHan(unit));
    ASSERT_TRUE(unit == u'做' || weight(unit) < weight(u'做')) << toUtf8({&unit, 1});
  }
}

TEST(Weight, FollowsPinyinAndItsTones) {
  constexpr std::u16string_view kSorted =
      u"阿爱安八白版包北不才词典电二法飞高国好会家开来妈麻马骂美女欧平情人三书他王文西学一英语在做";
  for (std::size_t i = 1; i < kSorted.size(); ++i) {
    EXPECT_LT(weight(kSorted[i - 1]), weight(kSorted[i])) << toUtf8(kSorted.substr(i - 1, 2));
  }
}

TEST(Compare, PutsTextsInTheDictionarysOrder) {
  constexpr std::array<std::u16string_view, 17> kSorted = {
      u"",     u" ",    u"'tis", u"-ish", u"1st", u"a",  u"a'",   u"A-bomb", u"ab",
      u"Abba", u"abbÁ", u"z",    u"àb",   u"Àc",  u"阿", u"词典", u"做做"};
  for (std::size_t i = 0; i < kSorted.size(); ++i) {
    for (std::size_t k = 0; k < kSorted.size(); ++k) {
      const int expected = static_cast<int>(i > k) - static_cast<int>(i < k);
      EXPECT_EQ(sign(compare(kSorted[i], kSorted[k])), expected)
          << toUtf8(kSorted[i]) << " / " << toUtf8(kSorted[k]);
      EXPECT_EQ(sign(compareUtf8(toUtf8(kSorted[i]), toUtf8(kSorted[k]))), expected)
          << toUtf8(kSorted[i]) << " / " << toUtf8(kSorted[k]);
    }
  }
}

TEST(Compare, PutsTheShorterTextFirst) {
  EXPECT_LT(compare(u"ab", u"abc"), 0);
  EXPECT_GT(compare(u"中文", u"中"), 0);
  EXPECT_LT(compareUtf8("ab", "abc"), 0);
  EXPECT_GT(compareUtf8("中文", "中"), 0);
  EXPECT_LT(compareUtf8("", std::string_view("\0", 1)), 0);
}

TEST(Compare, TakesCasesForTheSame) {
  EXPECT_EQ(compare(u"ABCÀÞ中", u"abcàþ中"), 0);
  EXPECT_EQ(compareUtf8("ABCÀÞ中", "abcàþ中"), 0);
  EXPECT_NE(compareUtf8("×", "÷"), 0);
  EXPECT_NE(compareUtf8("Ж", "ж"), 0);
}

TEST(Compare, HasZuoZuoAsUpperEndOfCommonTexts) {
  for (const char16_t unit : kCommonCharacters) {
    const std::u16string word = std::u16string(u"中") + unit + u"z";
    ASSERT_LT(compare(word, u"中做做"), 0) << toUtf8(word);
  }
}

TEST(Equal, IgnoresCaseOnly) {
  EXPECT_TRUE(equal(u"", u""));
  EXPECT_TRUE(equal(u"Àb中", u"àB中"));
  EXPECT_FALSE(equal(u"a", u"ab"));
  EXPECT_FALSE(equal(u"ab", u"a"));
  EXPECT_FALSE(equal(u"×", u"÷"));
  EXPECT_FALSE(equal(u"a", u"à"));
}

TEST(Compare, FollowsTheWeightsForAnyTexts) {
  RandomText random(6);
  for (int round = 0; round < 50000; ++round) {
    const std::u16string a = random.from(kUnits, 5);
    const std::u16string b = random.from(kUnits, 5);
    const int order = compareByWeights(a, b);
    ASSERT_EQ(sign(compare(a, b)), order) << toUtf8(a) << " / " << toUtf8(b);
    ASSERT_EQ(sign(compare(b, a)), -order) << toUtf8(a) << " / " << toUtf8(b);
    ASSERT_EQ(equal(a, b), order == 0);
    ASSERT_EQ(text::toLower(a) == text::toLower(b), order == 0);
  }
}

TEST(Compare, IsATotalOrder) {
  RandomText random(7);
  std::vector<std::string> texts(300);
  for (std::string& text : texts) {
    text = random.from(kBytes, 6);
  }
  std::sort(texts.begin(), texts.end(),
            [](const std::string& a, const std::string& b) { return compareUtf8(a, b) < 0; });
  for (std::size_t i = 0; i < texts.size(); ++i) {
    ASSERT_EQ(compareUtf8(texts[i], texts[i]), 0);
    for (std::size_t k = i + 1; k < texts.size(); ++k) {
      ASSERT_LE(compareUtf8(texts[i], texts[k]), 0);
      ASSERT_GE(compareUtf8(texts[k], texts[i]), 0);
    }
  }
}

TEST(CompareUtf8, AgreesWithCompareOnAnyBytes) {
  RandomText random(8);
  for (int round = 0; round < 100000; ++round) {
    const std::string start = random.from(kBytes, 6);
    const std::string a = start + random.from(kBytes, 4);
    const std::string b = start + random.from(kBytes, 4);
    ASSERT_EQ(sign(compareUtf8(a, b)), sign(compare(toUtf16(a), toUtf16(b))))
        << testing::PrintToString(a) << " / " << testing::PrintToString(b);
  }
}

TEST(CompareUtf8, TakesInvalidBytesForReplacementCharacters) {
  EXPECT_EQ(compareUtf8("\x80", "\xFF"), 0);
  EXPECT_EQ(compareUtf8("a\xE4", "a\uFFFD"), 0);
  EXPECT_EQ(compareUtf8("\xE4\xB8", "\xEF\xBF\xBD\xEF\xBF\xBD"), 0);
  EXPECT_GT(compareUtf8("\xE4\xB8", "\xEF\xBF\xBD"), 0);
  EXPECT_LT(compareUtf8("😀", "\xF0\x9F\x98"), 0);  // a surrogate sorts before U+FFFD
}

}  // namespace
