#include "forms/appearance/contrast.h"

#include <gtest/gtest.h>

#include <array>

namespace {

constexpr std::uint32_t kBlack = 0;
constexpr std::uint32_t kRed = 0x0000FF;
constexpr std::uint32_t kBlue = 0xFF0000;
constexpr std::array<std::uint32_t, 2> kTexts = {kRed, kBlue};

TEST(Contrast, IsThatOfTheGuidelines) {
  EXPECT_NEAR(forms::contrast(kBlack, forms::kWhite), 21, 0.001);
  EXPECT_NEAR(forms::contrast(forms::kWhite, forms::kWhite), 1, 0.001);
  EXPECT_NEAR(forms::contrast(kRed, forms::kWhite), 3.998, 0.001);
  EXPECT_NEAR(forms::contrast(kBlue, forms::kWhite), 8.592, 0.001);
  EXPECT_NEAR(forms::contrast(kBlue, kBlack), 2.444, 0.001);
  // The lightest grey that is readable on white, by the guidelines' own example.
  EXPECT_NEAR(forms::contrast(0x767676, forms::kWhite), 4.54, 0.01);
}

TEST(Contrast, DoesNotDependOnTheOrder) {
  EXPECT_EQ(forms::contrast(kBlue, 0x123456), forms::contrast(0x123456, kBlue));
}

TEST(Contrast, AButtonsFaceIsSeenOnAWindowOfAnotherColour) {
  EXPECT_TRUE(forms::isSeenOn(0xF0F0F0, forms::kWhite));
  EXPECT_TRUE(forms::isSeenOn(0xF5F5F5, forms::kWhite));
  EXPECT_TRUE(forms::isSeenOn(0xC8D0D4, forms::kWhite));
  EXPECT_FALSE(forms::isSeenOn(kBlack, kBlack));
  EXPECT_FALSE(forms::isSeenOn(forms::kWhite, forms::kWhite));
  EXPECT_FALSE(forms::isSeenOn(0x202020, 0x1C1C1C));
}

TEST(BackgroundFor, ALightThemeKeepsItsOwn) {
  constexpr std::uint32_t kPaleGreen = 0xCCEDC7;
  constexpr std::uint32_t kPaleYellow = 0xE1FFFF;
  for (const std::uint32_t theme : {forms::kWhite, kPaleGreen, kPaleYellow}) {
    EXPECT_EQ(forms::backgroundFor(kTexts, theme, false), theme);
  }
}

TEST(BackgroundFor, ADarkThemeGivesWay) {
  for (const std::uint32_t theme : {kBlack, 0x202020U, 0x808080U, kBlue, kRed}) {
    EXPECT_EQ(forms::backgroundFor(kTexts, theme, false), forms::kWhite);
  }
}

TEST(BackgroundFor, HighContrastIsAlwaysWhite) {
  EXPECT_EQ(forms::backgroundFor(kTexts, 0xCCEDC7, true), forms::kWhite);
  EXPECT_EQ(forms::backgroundFor({}, kBlack, true), forms::kWhite);
}

TEST(BackgroundFor, WhereWhiteDoesNotHelpTheThemeStays) {
  constexpr std::array<std::uint32_t, 1> kPale = {0xEEEEEE};
  EXPECT_EQ(forms::backgroundFor(kPale, kBlack, false), kBlack);
  EXPECT_EQ(forms::backgroundFor(kPale, 0xDDDDDD, false), 0xDDDDDDU);
}

}  // namespace
