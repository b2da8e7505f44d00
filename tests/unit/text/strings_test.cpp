#include "text/strings.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using text::onOneLine;
using text::shortened;
using text::trimBlanks;

TEST(Decimal, WritesDigitsAndAMinusSign) {
  EXPECT_EQ(text::decimal(0), u"0");
  EXPECT_EQ(text::decimal(1'060'000), u"1060000");
  EXPECT_EQ(text::decimal(-100), u"-100");
  EXPECT_EQ(text::decimal(std::numeric_limits<std::int64_t>::min()), u"-9223372036854775808");
}

TEST(Joined, AppendsThePartsInOrder) {
  EXPECT_EQ(text::joined({}), u"");
  EXPECT_EQ(text::joined({u"select ", u"", u"词"}), u"select 词");
}

TEST(TrimBlanks, TakesBlanksFromBothEnds) {
  EXPECT_EQ(text::trimBlanks(u"  a b "), u"a b");
  EXPECT_EQ(text::trimBlanks(u"词典"), u"词典");
  EXPECT_EQ(text::trimBlanks(u"   "), u"");
  EXPECT_EQ(text::trimBlanks(u""), u"");
}

TEST(TrimBlanks, LeavesOtherSpace) {
  EXPECT_EQ(text::trimBlanks(u"\ta\u00A0"), u"\ta\u00A0");
  EXPECT_EQ(text::trimBlanks(u"\u3000词 "), u"\u3000词");
}

TEST(Shortened, LeavesWhatIsShortEnough) {
  EXPECT_EQ(shortened(u"", 3), u"");
  EXPECT_EQ(shortened(u"abc", 3), u"abc");
  EXPECT_EQ(shortened(u"C:\\词典\\kk.dat", 12), u"C:\\词典\\kk.dat");
}

TEST(Shortened, KeepsBothEnds) {
  EXPECT_EQ(shortened(u"abcd", 3), u"a…d");
  EXPECT_EQ(shortened(u"abcdefghij", 6), u"abc…ij");
  EXPECT_EQ(shortened(u"abcdefghij", 7), u"abc…hij");
  EXPECT_EQ(shortened(u"near \"" + std::u16string(5000, u'x') + u"\": syntax error", 40),
            u"near \"xxxxxxxxxxxxxx…xxxx\": syntax error");
}

TEST(Shortened, CutsNoSurrogatePairInTwo) {
  EXPECT_EQ(shortened(u"a\U0001F600bcdefg", 5), u"a…fg");
  EXPECT_EQ(shortened(u"abcdef\U0001F600g", 5), u"ab…g");
  EXPECT_EQ(shortened(u"a\U0001F600bcde\U0001F600", 7), u"a\U0001F600…e\U0001F600");
}

TEST(OnOneLine, ABlankStandsForEveryLineEnd) {
  EXPECT_EQ(onOneLine(u"数据\r\n"), u"数据 ");
  EXPECT_EQ(onOneLine(u"数据\r"), u"数据 ");
  EXPECT_EQ(onOneLine(u"data\n位"), u"data 位");
  EXPECT_EQ(onOneLine(u"\r\n 数据；\r\n 位"), u"  数据；  位");
  EXPECT_EQ(onOneLine(u"a\n\rb\r\r\n"), u"a  b  ");
}

TEST(OnOneLine, LeavesAllElseAsItIs) {
  EXPECT_EQ(onOneLine(u" data bank "), u" data bank ");
  EXPECT_EQ(onOneLine(u""), u"");
}

}  // namespace
