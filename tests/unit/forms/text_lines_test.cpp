#include "forms/text_lines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <string_view>

namespace {

using forms::controlPosition;
using forms::fittedToBox;
using forms::kMaxBoxText;
using forms::kMaxBoxWord;
using forms::textPosition;
using forms::withWindowsLineEnds;

TEST(LineEnds, AllBecomeThoseOfWindows) {
  EXPECT_EQ(withWindowsLineEnds(u"a\rb\nc\r\nd"), u"a\r\nb\r\nc\r\nd");
  EXPECT_EQ(withWindowsLineEnds(u"\r"), u"\r\n");
  EXPECT_EQ(withWindowsLineEnds(u"\n"), u"\r\n");
  EXPECT_EQ(withWindowsLineEnds(u"词\r"), u"词\r\n");
}

TEST(LineEnds, EmptyLinesStay) {
  EXPECT_EQ(withWindowsLineEnds(u"\r\r"), u"\r\n\r\n");
  EXPECT_EQ(withWindowsLineEnds(u"\n\n"), u"\r\n\r\n");
  EXPECT_EQ(withWindowsLineEnds(u"\n\r"), u"\r\n\r\n");
  EXPECT_EQ(withWindowsLineEnds(u"\r\r\n"), u"\r\n\r\n");
}

TEST(LineEnds, TheRestStays) {
  EXPECT_EQ(withWindowsLineEnds(u""), u"");
  EXPECT_EQ(withWindowsLineEnds(u" it''s\t 它是"), u" it''s\t 它是");
}

TEST(LineEnds, DoneTwiceChangesNothingMore) {
  std::mt19937 random(11);
  for (int run = 0; run < 500; ++run) {
    std::u16string text;
    for (std::size_t length = random() % 30; length > 0; --length) {
      text += std::u16string_view(u"a词\r\n")[random() % 4];
    }
    const std::u16string once = withWindowsLineEnds(text);
    EXPECT_EQ(withWindowsLineEnds(once), once);
  }
}

TEST(FirmBlanks, StandWhereALineBegins) {
  EXPECT_EQ(forms::withFirmBlanks(u" bit\r\n 位 比；\r\n  two\r\nx"),
            u"\u00A0bit\r\n\u00A0位 比；\r\n\u00A0 two\r\nx");
  EXPECT_EQ(forms::withFirmBlanks(u""), u"");
  EXPECT_EQ(forms::withFirmBlanks(u"a "), u"a ");
}

TEST(TextPositions, AreTheSameWithoutLineEnds) {
  for (std::size_t at = 0; at <= 4; ++at) {
    EXPECT_EQ(controlPosition(u"word", at), at);
    EXPECT_EQ(textPosition(u"word", at), at);
  }
  EXPECT_EQ(controlPosition(u"", 0), 0U);
  EXPECT_EQ(textPosition(u"", 0), 0U);
}

TEST(TextPositions, ALineEndCountsTwiceInTheTextAndOnceInTheControl) {
  constexpr std::u16string_view kText = u" bit\r\n 位；\r\n 比特";
  EXPECT_EQ(controlPosition(kText, 4), 4U);
  EXPECT_EQ(controlPosition(kText, 6), 5U);
  EXPECT_EQ(controlPosition(kText, 11), 9U);
  EXPECT_EQ(controlPosition(kText, kText.size()), kText.size() - 2);
  EXPECT_EQ(textPosition(kText, 4), 4U);
  EXPECT_EQ(textPosition(kText, 5), 6U);
  EXPECT_EQ(textPosition(kText, 9), 11U);
  EXPECT_EQ(textPosition(kText, kText.size() - 2), kText.size());
}

TEST(TextPositions, BetweenTheTwoHalvesIsBeforeThePair) {
  EXPECT_EQ(controlPosition(u"ab\r\ncd", 3), 2U);
  EXPECT_EQ(controlPosition(u"\r\n\r\n", 3), 1U);
}

TEST(TextPositions, PastTheEndIsTheEnd) {
  EXPECT_EQ(controlPosition(u"ab\r\n", 99), 3U);
  EXPECT_EQ(textPosition(u"ab\r\n", 99), 4U);
}

TEST(TextPositions, OnlyPairsAreLineEnds) {
  EXPECT_EQ(controlPosition(u"a\rb\nc", 5), 5U);
  EXPECT_EQ(controlPosition(u"\n\r", 2), 2U);
  EXPECT_EQ(controlPosition(u"\r\r\n", 3), 2U);
  EXPECT_EQ(textPosition(u"\r\r\n", 2), 3U);
  EXPECT_EQ(controlPosition(u"a\r", 2), 2U);
}

TEST(TextPositions, RoundTripInAnyText) {
  std::mt19937 random(7);
  for (int run = 0; run < 500; ++run) {
    std::u16string text;
    for (std::size_t length = random() % 40; length > 0; --length) {
      text += std::u16string_view(u"a词\r\n")[random() % 4];
    }
    std::size_t last = 0;
    for (std::size_t at = 0; at <= text.size(); ++at) {
      const std::size_t inControl = controlPosition(text, at);
      EXPECT_GE(inControl, last);
      EXPECT_LE(inControl, last + 1);
      last = inControl;
      const bool inPair = at > 0 && at < text.size() && text[at - 1] == u'\r' && text[at] == u'\n';
      if (!inPair) {
        EXPECT_EQ(textPosition(text, inControl), at);
      }
    }
  }
}

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
