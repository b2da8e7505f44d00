#include "text/like.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include "tests/support/data/random_text.h"

namespace {

using text::LikePattern;
using text::likeUtf8;

/// What the pattern says of a copy of `text` that nothing readable follows.
bool matches(const LikePattern& pattern, std::string_view text) {
  const auto exact = std::make_unique<char[]>(text.size());
  text.copy(exact.get(), text.size());
  return pattern.matches({exact.get(), text.size()});
}

/// Tries patterns made of `pieces` on texts of `bytes`, and on what stands between wildcards in
/// them; returns how often they match.
int tryPatterns(RandomText& random, std::string_view bytes, std::size_t longest) {
  int found = 0;
  for (int round = 0; round < 100000; ++round) {
    const std::string text = random.from(bytes, longest);
    const std::size_t start = random.below(text.size() + 1);
    const std::string part = text.substr(start, random.below(12));
    const std::string_view ends[] = {"", "%", "_", "%_", "a", "%b%"};
    std::string like(ends[random.below(6)]);
    like.append(part).append(ends[random.below(6)]);
    if (round % 3 == 0) like += text.substr(random.below(text.size() + 1));
    const bool expected = likeUtf8(like, text);
    found += static_cast<int>(expected);
    EXPECT_EQ(matches(LikePattern(like), text), expected)
        << testing::PrintToString(like) << " / " << testing::PrintToString(text);
    if (testing::Test::HasFailure()) break;
  }
  return found;
}

TEST(LikePattern, AgreesWithLikeOnWords) {
  RandomText random(31);
  EXPECT_GT(tryPatterns(random, "abAB -", 60), 10000);
}

TEST(LikePattern, AgreesWithLikeOnAnyBytes) {
  RandomText random(32);
  EXPECT_GT(tryPatterns(random, "%_aA中心😀×÷ÀàßÿŸ\xEF\xBF\xBD\x80\x98\xC3\xE5\xF0\xFF", 40), 10000);
}

TEST(LikePattern, FindsAPartAtEveryPlace) {
  const LikePattern part("%QuX%");
  for (std::size_t length = 0; length < 40; ++length) {
    std::string text(length, 'q');
    EXPECT_FALSE(matches(part, text)) << text;
    for (std::size_t place = 0; place + 3 <= length; ++place) {
      text.replace(place, 3, "qUx");
      EXPECT_TRUE(matches(part, text)) << text;
      text.replace(place, 3, "qqq");
    }
  }
}

TEST(LikePattern, FoldsLettersOnly) {
  EXPECT_TRUE(LikePattern("%ÀB%").matches("xàb"));
  EXPECT_TRUE(LikePattern("%þ%").matches("xxÞ"));
  EXPECT_FALSE(LikePattern("%×%").matches("÷"));
  EXPECT_FALSE(LikePattern("%÷%").matches("×"));
  EXPECT_FALSE(LikePattern("%ÿ%").matches("ß"));
  EXPECT_FALSE(LikePattern("%ß%").matches("ÿ"));
  EXPECT_FALSE(LikePattern("%[%").matches("{"));
  EXPECT_FALSE(LikePattern("%{%").matches("["));
  EXPECT_FALSE(LikePattern("%`%").matches("@"));
  EXPECT_FALSE(LikePattern("%1%").matches("\x11"));
}

TEST(LikePattern, TakesABrokenByteForAReplacementCharacter) {
  EXPECT_TRUE(LikePattern("a\xEF\xBF\xBD%").matches("a\x80"));
  EXPECT_TRUE(LikePattern("a\xFF%").matches("a\xEF\xBF\xBD"));
  EXPECT_FALSE(LikePattern("%\xE5\xBF%").matches("\xE5\xBF\x83"));
}

}  // namespace
