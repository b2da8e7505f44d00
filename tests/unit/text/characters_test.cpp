#include "text/characters.h"

#include <gtest/gtest.h>

namespace {

TEST(LowerAscii, ChangesCapitalsOnly) {
  EXPECT_EQ(text::lowerAscii('A'), 'a');
  EXPECT_EQ(text::lowerAscii(u'Z'), u'z');
  EXPECT_EQ(text::lowerAscii('@'), '@');
  EXPECT_EQ(text::lowerAscii('['), '[');
  EXPECT_EQ(text::lowerAscii('\xC0'), '\xC0');
  EXPECT_EQ(text::lowerAscii(u'À'), u'À');
}

TEST(IsChinese, StartsAfterLatin1) {
  EXPECT_FALSE(text::isChinese(u'a'));
  EXPECT_FALSE(text::isChinese(u'\u00FF'));
  EXPECT_TRUE(text::isChinese(u'\u0100'));
  EXPECT_TRUE(text::isChinese(u'中'));
}

TEST(IsHan, IncludesCompatibilityIdeographs) {
  for (const char16_t unit : {u'\u3400', u'中', u'\u9FFF', u'〇', u'\uF900', u'\uFAFF'}) {
    EXPECT_TRUE(text::isHan(unit)) << int{unit};
  }
  for (const char16_t unit : {u'a', u'\u33FF', u'\uA000', u'。', u'\uF8FF', u'\uFB00', u'\xD842'}) {
    EXPECT_FALSE(text::isHan(unit)) << int{unit};
  }
}

TEST(IsUnifiedHan, ExcludesCompatibilityIdeographs) {
  for (const char16_t unit : {u'\u3400', u'中', u'\u9FFF', u'〇'}) {
    EXPECT_TRUE(text::isUnifiedHan(unit)) << int{unit};
  }
  for (const char16_t unit : {u'\u33FF', u'\uA000', u'\uF900', u'\uFAFF'}) {
    EXPECT_FALSE(text::isUnifiedHan(unit)) << int{unit};
  }
}

TEST(IsSurrogate, TellsTheHalvesApart) {
  EXPECT_TRUE(text::isHighSurrogate(0xD800) && text::isHighSurrogate(0xDBFF));
  EXPECT_TRUE(text::isLowSurrogate(0xDC00) && text::isLowSurrogate(0xDFFF));
  EXPECT_FALSE(text::isHighSurrogate(0xDC00) || text::isLowSurrogate(0xDBFF));
  EXPECT_FALSE(text::isHighSurrogate(0xD7FF) || text::isLowSurrogate(0xE000));
}

}  // namespace
