#include "dictionary/translation/pieces.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using dictionary::hasLostCharacterMark;

// "what for? | 为什么原因?为什么?干吗?", "what price...? | 胜算如何?, 有可能...吗?"
TEST(HasLostCharacterMark, IsFalseForQuestions) {
  for (const std::u16string_view text : {u"为什么原因?为什么?干吗?", u"胜算如何?, 有可能...吗?",
                                         u"要不要...?", u"What goes? 甲", u"甲"}) {
    EXPECT_FALSE(hasLostCharacterMark(text)) << text.size();
  }
}

// "stepin | [医]羟苯？噻酮", "cymene | [医] 对异丙基甲苯, ?花烃", "tree shrew | [医]树？",
// "fainted | a. ??人事的, 昏厥的"
TEST(HasLostCharacterMark, IsTrueInsideAWord) {
  for (const std::u16string_view text :
       {u"羟苯？噻酮", u" ?花烃", u"树？", u"??人事的", u"甲不？乙", u"是吗?苯？唑"}) {
    EXPECT_TRUE(hasLostCharacterMark(text)) << text.size();
  }
}

}  // namespace
