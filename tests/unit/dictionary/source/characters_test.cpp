#include "dictionary/source/characters.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

// "Bladan | 一六○五", "a4 | n. A4型纸（规格为297×210毫米的纸）"
TEST(Characters, TellDigitsAndSignsFromLetters) {
  EXPECT_TRUE(dictionary::isHan(u'〇'));
  for (const char16_t sign : std::u16string_view(u"×÷")) {
    EXPECT_FALSE(dictionary::isLatin1Letter(sign)) << static_cast<int>(sign);
    EXPECT_FALSE(dictionary::isLatin(sign)) << static_cast<int>(sign);
  }
  for (const char16_t letter : std::u16string_view(u"ÀÖØößøÿ")) {
    EXPECT_TRUE(dictionary::isLatin1Letter(letter)) << static_cast<int>(letter);
  }
}

TEST(Characters, ForbidWhatNobodySees) {
  for (const char16_t unit : std::u16string_view(u"\t\x1F\x7F\x9F\u00AD\u0300\u200B\u2028\u2060")) {
    EXPECT_TRUE(dictionary::isForbidden(unit)) << static_cast<int>(unit);
  }
  for (const char16_t unit : std::u16string_view(u" ~\u00A0¬®\u0370\u2010\u2030\u2070")) {
    EXPECT_FALSE(dictionary::isForbidden(unit)) << static_cast<int>(unit);
  }
}

}  // namespace
