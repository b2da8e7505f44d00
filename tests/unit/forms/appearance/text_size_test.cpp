#include "forms/appearance/text_size.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(TextScale, IsOneForNinePointsAtEveryResolution) {
  for (const auto& [height, dpi] :
       {std::pair{12, 96}, {15, 120}, {18, 144}, {21, 168}, {24, 192}}) {
    EXPECT_DOUBLE_EQ(forms::textScale(height, dpi), 1);
  }
}

TEST(TextScale, FollowsTheMessageFontUpButNotDown) {
  EXPECT_DOUBLE_EQ(forms::textScale(18, 96), 1.5);
  EXPECT_DOUBLE_EQ(forms::textScale(27, 96), 2.25);
  EXPECT_DOUBLE_EQ(forms::textScale(27, 144), 1.5);
  EXPECT_DOUBLE_EQ(forms::textScale(11, 96), 1);
  EXPECT_DOUBLE_EQ(forms::textScale(0, 96), 1);
}

TEST(LargestFitting, TakesWhatIsWantedIfItFits) {
  int asked = 0;
  EXPECT_EQ(forms::largestFitting(27, 6, [&](int) { return ++asked != 0; }), 27);
  EXPECT_EQ(asked, 1);
}

TEST(LargestFitting, OtherwiseTheGreatestThatDoes) {
  for (int limit = 6; limit < 60; ++limit) {
    EXPECT_EQ(forms::largestFitting(60, 6, [=](int height) { return height <= limit; }), limit);
  }
}

TEST(LargestFitting, NothingFitsBelowTheLeast) {
  EXPECT_EQ(forms::largestFitting(27, 6, [](int) { return false; }), 6);
  EXPECT_EQ(forms::largestFitting(5, 6, [](int) { return false; }), 5);
}

TEST(LayoutDpi, GrowsWithTheTexts) {
  constexpr forms::PixelSize kWindow{700, 480};
  constexpr forms::PixelSize kWork{3840, 2100};
  EXPECT_EQ(forms::layoutDpi(96, 1, kWindow, kWork), 96);
  EXPECT_EQ(forms::layoutDpi(96, 2.25, kWindow, kWork), 216);
  EXPECT_EQ(forms::layoutDpi(144, 1.5, kWindow, kWork), 216);
}

TEST(LayoutDpi, TheWindowStaysWithinTheScreen) {
  EXPECT_EQ(forms::layoutDpi(96, 2.25, {700, 500}, {1920, 1000}), 192);
  EXPECT_EQ(forms::layoutDpi(96, 2.25, {1400, 500}, {1680, 1000}), 115);
  EXPECT_EQ(forms::layoutDpi(96, 2.25, {1400, 500}, {1280, 1000}), 96);
  EXPECT_EQ(forms::layoutDpi(96, 2.25, {}, {1280, 1000}), 96);
}

}  // namespace
