#include "dictionary/coverage/popup_lookup.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/data/small_dictionary.h"

namespace {

using dictionary::PopupLookup;
using dictionary::Shown;

TEST(PopupLookup, ShowsTheWordsOwnMeaning) {
  PopupLookup lookup(support::smallDatabase());
  for (const std::u16string_view word : {u"bit", u"Bit", u"BIT", u"it's", u"X-ray"}) {
    EXPECT_TRUE(lookup.isHeadword(word));
    EXPECT_EQ(lookup.shown(word), Shown::kMeaning);
  }
}

TEST(PopupLookup, ListsTheMeaningsOfTheWordAsItIs) {
  PopupLookup lookup(support::smallDatabase());
  const std::vector<std::u16string> meanings = lookup.meanings(u"bit");
  EXPECT_NE(std::ranges::find(meanings, u"位"), meanings.end());
  EXPECT_FALSE(lookup.meanings(u"it's").empty()) << "the apostrophe is doubled";
  EXPECT_TRUE(lookup.meanings(u"bits").empty());
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
