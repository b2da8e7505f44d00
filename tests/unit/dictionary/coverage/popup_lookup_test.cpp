#include "dictionary/coverage/popup_lookup.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/data/small_dictionary.h"

namespace {

using dictionary::isReference;
using dictionary::PopupLookup;
using dictionary::Shown;

TEST(IsReference, NamesAnotherFormOfTheWord) {
  for (const std::u16string_view meaning :
       {u"take的过去式", u"take的过去式和过去分词", u"A-list的变形", u"agora的复数形",
        u"well-off的最高级形式", u"be的单数第一人称", u"direct的第三人称单数现在式", u"Body的变体",
        u"等于complainer", u"同“abbreviated”", u"参见bit"}) {
    EXPECT_TRUE(isReference(meaning));
  }
}

TEST(IsReference, IsNoMeaningOfItsOwn) {
  for (const std::u16string_view meaning :
       {u"", u"位", u"复数", u"复数的", u"等于", u"同", u"同意", u"同X射线", u"过去式的take",
        u"take的", u"Atlas的七个女儿", u"AS KNOW AS的缩写", u"be", u"，的复数", u"X射线的形式"}) {
    EXPECT_FALSE(isReference(meaning));
  }
}

TEST(PopupLookup, ShowsTheWordsOwnMeaning) {
  PopupLookup lookup(support::smallDatabase());
  for (const std::u16string_view word : {u"bit", u"Bit", u"BIT", u"it's", u"X-ray"}) {
    EXPECT_TRUE(lookup.isHeadword(word));
    EXPECT_EQ(lookup.shown(word), Shown::kMeaning);
  }
}

TEST(PopupLookup, ShowsThatOfTheWordWithoutItsLastLetter) {
  PopupLookup lookup(support::smallDatabase());
  for (const std::u16string_view word : {u"bits", u"BITS", u"datax"}) {
    EXPECT_FALSE(lookup.isHeadword(word));
    EXPECT_EQ(lookup.shown(word), Shown::kShortened);
  }
}

TEST(PopupLookup, ShowsNothingForOtherWords) {
  PopupLookup lookup(support::smallDatabase());
  for (const std::u16string_view word : {u"wordless", u"bitxx", u"q", u"it'sx"}) {
    for (int times = 0; times < 2; ++times) {  // the second time from memory
      EXPECT_FALSE(lookup.isHeadword(word));
      EXPECT_EQ(lookup.shown(word), Shown::kNothing);
    }
  }
}

}  // namespace
