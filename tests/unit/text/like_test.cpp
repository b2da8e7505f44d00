#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <string_view>

#include "tests/support/data/random_text.h"
#include "text/like.h"
#include "text/order.h"
#include "text/utf.h"

namespace {

using text::like;
using text::likeUtf8;
using text::toUtf16;
using text::toUtf8;

/// Whether all three forms say so; they never differ.
testing::AssertionResult matches(std::u16string_view pattern, std::u16string_view text) {
  const bool result = like(pattern, text);
  if (likeUtf8(toUtf8(pattern), toUtf8(text)) != result) {
    return testing::AssertionFailure() << "like says " << result << ", likeUtf8 does not";
  }
  if (text::LikePattern(toUtf8(pattern)).matches(toUtf8(text)) != result) {
    return testing::AssertionFailure() << "like says " << result << ", LikePattern does not";
  }
  return testing::AssertionResult(result);
}

/// LIKE by its definition.
bool likeByDefinition(std::u16string_view pattern, std::u16string_view text) {
  if (pattern.empty()) {
    return text.empty();
  }
  const std::u16string_view rest = pattern.substr(1);
  if (pattern.front() == u'%') {
    return likeByDefinition(rest, text) ||
           (!text.empty() && likeByDefinition(pattern, text.substr(1)));
  }
  if (text.empty()) {
    return false;
  }
  const bool same = text::foldCase(pattern.front()) == text::foldCase(text.front());
  return (same || pattern.front() == u'_') && likeByDefinition(rest, text.substr(1));
}

TEST(Like, ComparesWholeTextsWithoutWildcards) {
  EXPECT_TRUE(matches(u"", u""));
  EXPECT_TRUE(matches(u"cat", u"cat"));
  EXPECT_FALSE(matches(u"", u"a"));
  EXPECT_FALSE(matches(u"a", u""));
  EXPECT_FALSE(matches(u"cat", u"cats"));
  EXPECT_FALSE(matches(u"cats", u"cat"));
  EXPECT_TRUE(matches(u"中文", u"中文"));
  EXPECT_FALSE(matches(u"中文", u"中国"));
}

TEST(Like, IgnoresTheCaseOfAsciiAndLatin1) {
  EXPECT_TRUE(matches(u"CaT", u"cAt"));
  EXPECT_TRUE(matches(u"ÀÞ", u"àþ"));
  EXPECT_TRUE(matches(u"%É", u"cafÉ"));
  EXPECT_TRUE(matches(u"%É", u"café"));
  EXPECT_FALSE(matches(u"×", u"÷"));
  EXPECT_FALSE(matches(u"%×", u"a÷"));
  EXPECT_FALSE(matches(u"ж", u"Ж"));
  EXPECT_FALSE(matches(u"[", u"{"));
  EXPECT_FALSE(matches(u"%@", u"`"));
}

TEST(Like, TakesOneUnitForAnUnderscore) {
  EXPECT_TRUE(matches(u"c_t", u"cat"));
  EXPECT_TRUE(matches(u"_", u"中"));
  EXPECT_TRUE(matches(u"__", u"\xD83D\xDE00"));
  EXPECT_FALSE(matches(u"_", u"\xD83D\xDE00"));
  EXPECT_TRUE(matches(u"a__b",
                      u"a\xD83D\xDE00"
                      u"b"));
  EXPECT_FALSE(matches(u"_", u""));
  EXPECT_FALSE(matches(u"_", u"ab"));
  EXPECT_TRUE(matches(u"_", u"%"));
}

TEST(Like, TakesAnyRunForAPercentSign) {
  EXPECT_TRUE(matches(u"%", u""));
  EXPECT_TRUE(matches(u"%", u"abc"));
  EXPECT_TRUE(matches(u"%%", u""));
  EXPECT_TRUE(matches(u"a%", u"a"));
  EXPECT_TRUE(matches(u"a%", u"abc"));
  EXPECT_FALSE(matches(u"a%", u"ba"));
  EXPECT_TRUE(matches(u"%c", u"abc"));
  EXPECT_FALSE(matches(u"%c", u"cb"));
  EXPECT_TRUE(matches(u"%b%", u"abc"));
  EXPECT_FALSE(matches(u"%x%", u"abc"));
  EXPECT_TRUE(matches(u"a%c", u"abcabc"));
  EXPECT_TRUE(matches(u"%心%病", u"先天性心脏病"));
  EXPECT_FALSE(matches(u"%心%病", u"病心"));
}

TEST(Like, TriesLongerRunsWhereTheFirstFails) {
  EXPECT_TRUE(matches(u"%aab", u"aaaab"));
  EXPECT_TRUE(matches(u"%ab%cd", u"abcabcd"));
  EXPECT_TRUE(matches(u"%_b", u"bb"));
  EXPECT_TRUE(matches(u"%__", u"abc"));
  EXPECT_TRUE(matches(u"_%_", u"ab"));
  EXPECT_FALSE(matches(u"_%_", u"a"));
  EXPECT_FALSE(matches(u"a%a", u"a"));
}

TEST(Like, TakesEverythingElseLiterally) {
  EXPECT_TRUE(matches(u"[a-c]*?\\", u"[a-c]*?\\"));
  EXPECT_FALSE(matches(u"\\%", u"%"));
  EXPECT_FALSE(matches(u"*", u"abc"));
  EXPECT_TRUE(matches(std::u16string_view(u"a\0%", 3), std::u16string_view(u"a\0b", 3)));
  EXPECT_FALSE(matches(std::u16string_view(u"a\0b", 3), u"a"));
}

TEST(Like, AgreesWithItsDefinition) {
  RandomText random(9);
  int found = 0;
  for (int round = 0; round < 200000; ++round) {
    const std::u16string pattern = random.from<char16_t>(u"%%_aAbà中", 7);
    const std::u16string text = random.from<char16_t>(u"aAbBàÀ中", 8);
    const bool expected = likeByDefinition(pattern, text);
    found += static_cast<int>(expected);
    ASSERT_EQ(static_cast<bool>(matches(pattern, text)), expected)
        << toUtf8(pattern) << " / " << toUtf8(text);
  }
  EXPECT_GT(found, 20000);  // both answers are tried often
}

TEST(LikeUtf8, AgreesWithLikeOnAnyBytes) {
  RandomText random(10);
  constexpr std::string_view kBytes = "%%_aA中😀\xEF\xBF\xBD\x80\x98\xC3\xA9\xF0\xFF";
  for (int round = 0; round < 200000; ++round) {
    const std::string pattern = random.from(kBytes, 9);
    const std::string text = random.from(kBytes, 12);
    ASSERT_EQ(likeUtf8(pattern, text), likeByDefinition(toUtf16(pattern), toUtf16(text)))
        << testing::PrintToString(pattern) << " / " << testing::PrintToString(text);
  }
}

TEST(Like, IsQuickWithHostilePatterns) {
  std::string pattern;
  for (int i = 0; i < 200; ++i) {
    pattern += "%a";
  }
  const std::string text(100000, 'a');
  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(likeUtf8(pattern + "%", text));
  EXPECT_FALSE(likeUtf8(pattern + "%b", text));
  EXPECT_FALSE(likeUtf8(pattern + "_b%", text));
  EXPECT_FALSE(like(toUtf16(pattern + "%b"), toUtf16(text)));
  // A few milliseconds; trying every way to share out the text would outlast us all.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

}  // namespace
