#include "forms/box_text.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using forms::fittedToBox;
using forms::kMaxBoxText;
using forms::kMaxBoxWord;

std::u16string run(std::size_t length) { return std::u16string(length, u'x'); }

TEST(BoxText, OrdinaryTextsStayAsTheyAre) {
  for (const std::u16string& text :
       {std::u16string(), std::u16string(u"查词出错！"),
        std::u16string(u" two\r\nlines\tand more "), u"a " + run(kMaxBoxWord) + u" b",
        std::u16string(u"C:\\Program Files\\Lexilo\\kk.dat")}) {
    EXPECT_EQ(fittedToBox(text), text);
  }
}

TEST(BoxText, LongWordsGoOverSeveralLines) {
  EXPECT_EQ(fittedToBox(run(kMaxBoxWord + 1)), run(kMaxBoxWord) + u"\nx");
  EXPECT_EQ(fittedToBox(u"a " + run((2 * kMaxBoxWord) + 5) + u"\nb"),
            u"a " + run(kMaxBoxWord) + u"\n" + run(kMaxBoxWord) + u"\nxxxxx\nb");
}

TEST(BoxText, LongPathsBreakAfterAFolder) {
  const std::u16string first = u"C:\\" + run(40) + u"\\";
  const std::u16string second = run(40) + u"\\kk.dat";
  EXPECT_EQ(fittedToBox(first + second), first + u"\n" + second);
  EXPECT_EQ(fittedToBox(u"/" + run(50) + u"/" + run(50)), u"/" + run(50) + u"/\n" + run(50));
}

TEST(BoxText, NoSurrogatePairIsCutInTwo) {
  const std::u16string before = run(kMaxBoxWord - 1);
  EXPECT_EQ(fittedToBox(before + u"\U0001F600y"), before + u"\n\U0001F600y");
}

TEST(BoxText, WhatIsTooLongLosesItsMiddle) {
  std::u16string text = u"first";
  while (text.size() < 10'000) text += u" word";
  const std::u16string fitted = fittedToBox(text + u" last");
  EXPECT_EQ(fitted.size(), kMaxBoxText);
  EXPECT_TRUE(fitted.starts_with(u"first word"));
  EXPECT_TRUE(fitted.ends_with(u"word last"));
  const std::u16string broken = fittedToBox(run(100'000));
  EXPECT_LE(broken.size(), kMaxBoxText + (kMaxBoxText / kMaxBoxWord));
}

}  // namespace
