#include "capture/nhw32/controls/coordinates.h"

#include <gtest/gtest.h>

#include <ostream>

namespace nhw32 {

void PrintTo(const TargetPoint& point, std::ostream* out) { *out << point.x << ", " << point.y; }

namespace {

/// A window of 400 x 300 pixels of its own at `origin`, shown at `percent`.
WindowScale shownAt(int percent, TargetPoint origin) {
  const auto scaled = [&](int value) { return value * percent / 100; };
  return {.onScreen = {scaled(origin.x), scaled(origin.y), scaled(origin.x) + scaled(400),
                       scaled(origin.y) + scaled(300)},
          .forTarget = {origin.x, origin.y, origin.x + 400, origin.y + 300}};
}

TEST(TargetCoordinates, AreTheScreensForProgramsThatKnowTheResolution) {
  const WindowScale scale = shownAt(100, {-50, 20});
  for (int x = -60; x < 360; x += 7) {
    EXPECT_EQ(toTarget(scale, {x, x + 70}), (TargetPoint{x, x + 70}));
  }
  EXPECT_EQ(toScreen(scale, {-10, 30, 40, 46}), (ScreenBox{-10, 30, 40, 46}));
}

TEST(TargetCoordinates, AreReducedForProgramsThatTheSystemEnlarges) {
  const WindowScale half = shownAt(200, {100, 100});
  EXPECT_EQ(toTarget(half, {200, 200}), (TargetPoint{100, 100}));
  EXPECT_EQ(toTarget(half, {201, 201}), (TargetPoint{100, 100}));
  EXPECT_EQ(toTarget(half, {202, 203}), (TargetPoint{101, 101}));
  EXPECT_EQ(toTarget(half, {999, 799}), (TargetPoint{499, 399}));
  EXPECT_EQ(toScreen(half, {100, 100, 110, 116}), (ScreenBox{200, 200, 220, 232}));
  const WindowScale oneAndAHalf = shownAt(150, {100, 100});
  EXPECT_EQ(toTarget(oneAndAHalf, {150, 150}), (TargetPoint{100, 100}));
  EXPECT_EQ(toTarget(oneAndAHalf, {153, 153}), (TargetPoint{102, 102}));
  // By the middle of the screen's pixel; its left edge lies in the pixel before.
  EXPECT_EQ(toTarget(oneAndAHalf, {151, 152}), (TargetPoint{101, 101}));
  EXPECT_EQ(toScreen(oneAndAHalf, {101, 100, 102, 116}), (ScreenBox{151, 150, 153, 174}));
}

/// At every resolution each of the target's pixels is reached, and a box that holds it covers the
/// pixel of the screen that it came from.
TEST(TargetCoordinates, RoundTripFrom100To200Percent) {
  for (const int percent : {100, 110, 120, 125, 135, 150, 165, 175, 180, 190, 200}) {
    for (const TargetPoint origin : {TargetPoint{0, 0}, {100, 60}, {-1600, -900}}) {
      const WindowScale scale = shownAt(percent, origin);
      int last = origin.x - 1;
      for (int x = scale.onScreen.left; x < scale.onScreen.right; ++x) {
        const TargetPoint point = toTarget(scale, {x, scale.onScreen.top});
        ASSERT_TRUE(point.x == last || point.x == last + 1) << percent << " % at " << x;
        last = point.x;
        const ScreenBox box = toScreen(scale, {point.x, point.y, point.x + 1, point.y + 1});
        ASSERT_TRUE(box.left <= x && x < box.right) << percent << " % at " << x;
      }
      EXPECT_EQ(last, origin.x + 399) << percent << " %";
    }
  }
}

TEST(TargetCoordinates, NegativeOnesAreRoundedDownToo) {
  const WindowScale scale = shownAt(200, {-100, -100});
  EXPECT_EQ(toTarget(scale, {-201, -202}), (TargetPoint{-101, -101}));
  EXPECT_EQ(toTarget(scale, {-1, -2}), (TargetPoint{-1, -1}));
}

TEST(TargetCoordinates, AWindowWithoutSizeIsTakenAsItIs) {
  const WindowScale nothing{};
  EXPECT_EQ(toTarget(nothing, {5, 6}), (TargetPoint{5, 6}));
  EXPECT_EQ(toScreen(nothing, {1, 2, 3, 4}), (ScreenBox{1, 2, 3, 4}));
}

}  // namespace
}  // namespace nhw32
