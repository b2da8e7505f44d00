#include "text/trim.h"

#include <gtest/gtest.h>

namespace {

TEST(TrimBlanks, TakesBlanksFromBothEnds) {
  EXPECT_EQ(user::trimBlanks(u"  a b "), u"a b");
  EXPECT_EQ(user::trimBlanks(u"词典"), u"词典");
  EXPECT_EQ(user::trimBlanks(u"   "), u"");
  EXPECT_EQ(user::trimBlanks(u""), u"");
}

TEST(TrimBlanks, LeavesOtherSpace) {
  EXPECT_EQ(user::trimBlanks(u"\ta\u00A0"), u"\ta\u00A0");
  EXPECT_EQ(user::trimBlanks(u"\u3000词 "), u"\u3000词");
}

}  // namespace
