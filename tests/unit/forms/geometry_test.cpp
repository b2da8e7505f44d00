#include "forms/geometry.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

namespace {

using forms::scaledOuter;
using forms::toPixels;
using forms::toTwips;

TEST(Geometry, FifteenTwipsAreAPixelAt96Dpi) {
  EXPECT_EQ(toPixels(0, 96), 0);
  EXPECT_EQ(toPixels(15, 96), 1);
  EXPECT_EQ(toPixels(3500, 96), 233);
  EXPECT_EQ(toTwips(1, 96), 15);
  EXPECT_EQ(toTwips(233, 96), 3495);
}

TEST(Geometry, PixelsGrowWithTheResolution) {
  EXPECT_EQ(toPixels(375, 96), 25);
  EXPECT_EQ(toPixels(375, 120), 31);
  EXPECT_EQ(toPixels(375, 144), 38);
  EXPECT_EQ(toPixels(375, 192), 50);
  EXPECT_EQ(toTwips(50, 192), 375);
}

TEST(Geometry, HalvesGoAwayFromZero) {
  EXPECT_EQ(toPixels(7, 96), 0);
  EXPECT_EQ(toPixels(8, 96), 1);
  EXPECT_EQ(toPixels(-7, 96), 0);
  EXPECT_EQ(toPixels(-8, 96), -1);
  EXPECT_EQ(toPixels(15, 48), 1);
  EXPECT_EQ(toPixels(-15, 48), -1);
}

TEST(Geometry, NegativePlacesMirrorPositiveOnes) {
  for (int twips = 0; twips < 2000; ++twips)
    EXPECT_EQ(toPixels(-twips, 120), -toPixels(twips, 120));
}

TEST(Geometry, PixelsComeBackFromTwips) {
  for (const int dpi : {96, 120, 144, 168, 192, 240, 288}) {
    for (int pixels = -2000; pixels <= 4000; ++pixels) {
      ASSERT_EQ(toPixels(toTwips(pixels, dpi), dpi), pixels) << dpi;
    }
  }
}

TEST(Geometry, LargeNumbersDoNotOverflowOnTheWay) {
  EXPECT_EQ(toPixels(100'000'000, 144), 10'000'000);
  EXPECT_EQ(toTwips(-10'000'000, 144), -100'000'000);
}

TEST(OuterTwips, AreTheClientSizeAndTheFrame) {
  EXPECT_EQ(forms::clientPixels(8415, 120, 96), 553);
  EXPECT_EQ(forms::clientPixels(100, 120, 96), 0);
  EXPECT_EQ(forms::outerTwips(553, 120, 96, 0, 0), 8415);
  EXPECT_EQ(forms::outerTwips(553, 0, 96, 0, 0), 8295);
}

TEST(OuterTwips, KeepAKnownSizeOfTheSamePixels) {
  ASSERT_EQ(forms::clientPixels(8417, 120, 96), 553);
  ASSERT_EQ(forms::clientPixels(8410, 120, 96), 553);
  EXPECT_EQ(forms::outerTwips(553, 120, 96, 8417, 8410), 8417);
  EXPECT_EQ(forms::outerTwips(553, 120, 96, 3000, 8410), 8410);
  EXPECT_EQ(forms::outerTwips(554, 120, 96, 8417, 8410), 8430);
}

TEST(OuterTwips, EndAtTheLargestSize) {
  EXPECT_EQ(forms::outerTwips(3000, 120, 96, 0, 0), forms::kMaxSize);
  EXPECT_EQ(forms::clientPixels(forms::kMaxSize, 120, 96), 2176);
}

TEST(SixteenBits, HoldWhatFits) {
  EXPECT_EQ(forms::toInt16(0), 0);
  EXPECT_EQ(forms::toInt16(32767), 32767);
  EXPECT_EQ(forms::toInt16(-32768), -32768);
}

TEST(SixteenBits, RefuseWhatDoesNot) {
  EXPECT_THROW(forms::toInt16(32768), std::overflow_error);
  EXPECT_THROW(forms::toInt16(-32769), std::overflow_error);
  EXPECT_THROW(forms::toInt16(std::numeric_limits<std::int64_t>::max()), std::overflow_error);
  try {
    forms::toInt16(40000);
    FAIL();
  } catch (const std::overflow_error& error) {
    EXPECT_STREQ(error.what(), "Overflow");
  }
}

TEST(Subtraction, StaysIn32Bits) {
  constexpr auto kLeast = std::numeric_limits<std::int32_t>::min();
  constexpr auto kMost = std::numeric_limits<std::int32_t>::max();
  EXPECT_EQ(forms::subtract(5, 7), -2);
  EXPECT_EQ(forms::subtract(kMost, kMost), 0);
  EXPECT_EQ(forms::subtract(-1, kMost), kLeast);
  EXPECT_THROW(forms::subtract(kLeast, 1), std::overflow_error);
  EXPECT_THROW(forms::subtract(kMost, -1), std::overflow_error);
  EXPECT_THROW(forms::subtract(0, kLeast), std::overflow_error);
}

TEST(ScaledOuter, ScalesTheClientAreaAndNotTheFrame) {
  EXPECT_EQ(scaledOuter(816, 16, 22, 96, 144), 1222);
  EXPECT_EQ(scaledOuter(1222, 22, 16, 144, 96), 816);
  EXPECT_EQ(scaledOuter(101, 0, 0, 96, 144), 152);
  EXPECT_EQ(scaledOuter(10, 16, 22, 96, 144), 22);
}

}  // namespace
