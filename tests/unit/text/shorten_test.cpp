#include "text/shorten.h"

#include <gtest/gtest.h>

namespace {

using text::shortened;

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

}  // namespace
