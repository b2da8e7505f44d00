#include "capture/popup_watch.h"

#include <gtest/gtest.h>

#include <vector>

namespace capture {
namespace {

PopupSight atOpening() {
  return {.input = 5000,
          .x = 100,
          .y = 200,
          .mouseMoved = false,
          .mouseUsed = false,
          .foreground = 7,
          .window = {.shown = true,
                     .left = 10,
                     .top = 20,
                     .right = 300,
                     .bottom = 400,
                     .topmost = 7,
                     .horizontal = {},
                     .vertical = 12}};
}

/// Looks at `sights` in turn; the number of the first that closes the popup, 0 if none does.
std::size_t closedAt(const std::vector<PopupSight>& sights) {
  PopupWatch watch(atOpening());
  for (std::size_t i = 0; i < sights.size(); ++i) {
    if (watch.look(sights[i])) return i + 1;
  }
  return 0;
}

PopupSight with(std::uint32_t input, int x = 100) {
  PopupSight sight = atOpening();
  sight.input = input;
  sight.x = x;
  return sight;
}

PopupSight reported(std::uint32_t input) {
  PopupSight sight = with(input);
  sight.mouseMoved = true;
  return sight;
}

// An hour at 50 ms a look.
TEST(PopupWatch, APointerAtRestKeepsItsPopup) {
  PopupWatch watch(atOpening());
  for (int look = 0; look < 72'000; ++look) ASSERT_FALSE(watch.look(atOpening())) << look;
}

TEST(PopupWatch, AnInputWhileThePointerStandsStillClosesItOneLookLater) {
  EXPECT_EQ(closedAt({with(5000), with(5100), with(5100)}), 3U);
  EXPECT_EQ(closedAt({with(5000), with(5100), with(5200)}), 3U);
  PopupWatch watch(atOpening());
  EXPECT_FALSE(watch.look(with(5000)));
  EXPECT_FALSE(watch.look(with(5100)));
  EXPECT_EQ(watch.look(with(5100)), PopupEnd::kInput);
}

TEST(PopupWatch, AnInputJustAfterItOpenedClosesItToo) {
  EXPECT_EQ(closedAt({with(5100), with(5100)}), 2U);
}

TEST(PopupWatch, TheCountersStartOverAfter49Days) {
  EXPECT_EQ(closedAt({with(5000), with(3), with(3)}), 3U);
}

TEST(PopupWatch, TheInputThatBroughtThePointerThereDoesNot) {
  EXPECT_EQ(closedAt({reported(5010), with(5010), with(5010), with(5010)}), 0U);
  EXPECT_EQ(closedAt({with(5010), reported(5010), with(5010), with(5010)}), 0U);
}

TEST(PopupWatch, AMoveOfAFewPixelsDoesNot) {
  EXPECT_EQ(closedAt({with(5000), with(5100, 101), with(5100, 101), with(5100, 101)}), 0U);
  // The pointer is seen before the input's time, and after it.
  EXPECT_EQ(closedAt({with(5000), with(5000, 101), with(5100, 101), with(5100, 101)}), 0U);
  EXPECT_EQ(closedAt({with(5000), with(5100), with(5100, 101), with(5100, 101)}), 0U);
  PopupSight down = with(5100);
  down.y = 203;
  EXPECT_EQ(closedAt({with(5000), down, down, down}), 0U);
}

TEST(PopupWatch, AMoveThereAndBackOrOfLessThanAPixelDoesNot) {
  EXPECT_EQ(closedAt({with(5000), reported(5100), with(5100), with(5100)}), 0U);
  EXPECT_EQ(closedAt({with(5000), with(5100), reported(5100), with(5100), with(5100)}), 0U);
  EXPECT_EQ(closedAt({with(5000), reported(5000), with(5100), with(5100)}), 0U);
}

TEST(PopupWatch, AHandThatNeverRestsQuiteKeepsIt) {
  PopupWatch watch(atOpening());
  for (std::uint32_t look = 1; look < 1000; ++look) {
    ASSERT_FALSE(
        watch.look(look % 3 == 0 ? reported(5000 + look) : with(5000 + look, 100 + look % 3)));
  }
}

TEST(PopupWatch, AKeyAfterAMoveClosesIt) {
  EXPECT_EQ(
      closedAt({with(5000), with(5100, 103), with(5100, 103), with(5200, 103), with(5200, 103)}),
      5U);
  // Going down with the move, the key is not told from it; coming up it is.
  EXPECT_EQ(
      closedAt({with(5000), with(5100, 103), with(5150, 103), with(5230, 103), with(5230, 103)}),
      5U);
}

TEST(PopupWatch, AButtonOrTheWheelClosesItAtOnceAlsoWithAMove) {
  for (const bool moved : {false, true}) {
    PopupSight used = with(5100, moved ? 102 : 100);
    used.mouseUsed = true;
    used.mouseMoved = moved;
    PopupWatch watch(atOpening());
    EXPECT_EQ(watch.look(used), PopupEnd::kInput);
  }
}

TEST(PopupWatch, AnotherWindowInTheForegroundClosesIt) {
  PopupSight other = atOpening();
  other.foreground = 8;
  PopupWatch watch(atOpening());
  EXPECT_EQ(watch.look(other), PopupEnd::kForeground);
}

TEST(PopupWatch, AForegroundThatIsChangingIsNoOther) {
  PopupSight none = atOpening();
  none.foreground = 0;
  EXPECT_EQ(closedAt({none, none, atOpening(), none}), 0U);
  PopupSight other = atOpening();
  other.foreground = 8;
  EXPECT_EQ(closedAt({none, other}), 2U);
  // The one that was changing when the popup opened is the one that comes then.
  PopupWatch watch(none);
  EXPECT_FALSE(watch.look(none));
  EXPECT_FALSE(watch.look(other));
  EXPECT_EQ(watch.look(atOpening()), PopupEnd::kForeground);
}

TEST(PopupWatch, AWindowThatIsSeenOtherwiseClosesIt) {
  const auto closes = [](auto change) {
    PopupSight now = atOpening();
    change(now.window);
    PopupWatch watch(atOpening());
    return watch.look(now) == PopupEnd::kWindow;
  };
  EXPECT_FALSE(closes([](WordWindow&) {}));
  EXPECT_TRUE(closes([](WordWindow& window) { window.shown = false; }));
  EXPECT_TRUE(closes([](WordWindow& window) { window.left += 1; }));
  EXPECT_TRUE(closes([](WordWindow& window) { window.top += 1; }));
  EXPECT_TRUE(closes([](WordWindow& window) { window.right += 1; }));
  EXPECT_TRUE(closes([](WordWindow& window) { window.bottom += 1; }));
  EXPECT_TRUE(closes([](WordWindow& window) { window.topmost = 8; }));
  EXPECT_TRUE(closes([](WordWindow& window) { window.vertical = 13; }));
  EXPECT_TRUE(closes([](WordWindow& window) { window.vertical.reset(); }));
  EXPECT_TRUE(closes([](WordWindow& window) { window.horizontal = 1; }));
  EXPECT_FALSE(closes([](WordWindow& window) { window.horizontal = 0; })) << "a bar that appears";
}

}  // namespace
}  // namespace capture
