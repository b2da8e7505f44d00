#include "text/typed_text.h"

#include <gtest/gtest.h>

#include "text/query_text.h"

namespace {

using user::onOneLine;
using user::readTyped;
using user::Typed;

TEST(ReadTyped, FindsNothingInBlanks) {
  for (const std::u16string_view text : {u"", u" ", u"     "}) {
    EXPECT_EQ(readTyped(text).kind, Typed::kNothing);
    EXPECT_EQ(readTyped(text).word, u"");
  }
}

TEST(ReadTyped, RefusesEnglishBehindAWildcard) {
  for (const std::u16string_view text :
       {u"?abc", u"*", u"_data", u"%abc", u"  ?x", u"%", u"?caf\u00E9"}) {
    EXPECT_EQ(readTyped(text).kind, Typed::kRefused);
    EXPECT_EQ(readTyped(text).word, u"");
  }
}

TEST(ReadTyped, TakesWildcardsFurtherBackAndBeforeChinese) {
  EXPECT_EQ(readTyped(u"a?bc").kind, Typed::kWord);
  EXPECT_EQ(readTyped(u"da%").word, u"da%");
  EXPECT_EQ(readTyped(u"?数").kind, Typed::kWord);
  EXPECT_EQ(readTyped(u"*数").language, user::kChinese);
}

TEST(ReadTyped, TrimsBlanksAndDoublesQuotes) {
  EXPECT_EQ(readTyped(u"  it's ").word, u"it''s");
  EXPECT_EQ(readTyped(u"  it's ").language, user::kEnglish);
  EXPECT_EQ(readTyped(u" 数据").word, u"数据");
  EXPECT_EQ(readTyped(u" 数据").language, user::kChinese);
  EXPECT_EQ(readTyped(u"'").word, u"''");
  EXPECT_EQ(readTyped(u"\u3000").kind, Typed::kWord);
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
