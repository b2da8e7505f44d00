#include "forms/line_ends.h"

#include <gtest/gtest.h>

#include <random>

namespace {

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

}  // namespace
