#include "text/decimal.h"

#include <gtest/gtest.h>

#include <limits>

#include "text/ascii.h"

namespace {

TEST(Decimal, WritesDigitsAndAMinusSign) {
  EXPECT_EQ(text::decimal(0), u"0");
  EXPECT_EQ(text::decimal(1'060'000), u"1060000");
  EXPECT_EQ(text::decimal(-100), u"-100");
  EXPECT_EQ(text::decimal(std::numeric_limits<std::int64_t>::min()), u"-9223372036854775808");
}

TEST(LowerAscii, ChangesCapitalsOnly) {
  EXPECT_EQ(text::lowerAscii('A'), 'a');
  EXPECT_EQ(text::lowerAscii(u'Z'), u'z');
  EXPECT_EQ(text::lowerAscii('@'), '@');
  EXPECT_EQ(text::lowerAscii('['), '[');
  EXPECT_EQ(text::lowerAscii('\xC0'), '\xC0');
  EXPECT_EQ(text::lowerAscii(u'À'), u'À');
}

}  // namespace
