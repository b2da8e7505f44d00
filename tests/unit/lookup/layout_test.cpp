#include "lookup/layout.h"

#include <gtest/gtest.h>

namespace {

using lookup::Box;
using lookup::layOut;
using lookup::Size;
using lookup::snapSize;
using lookup::widthAfterDropOnList;
using lookup::widthAfterDropOnPane;
using lookup::widthToKeep;

TEST(Snapping, BelowItsThresholdsAWindowIs3500By2800) {
  EXPECT_EQ(snapSize({3000, 2500}), (Size{3500, 2800}));
  EXPECT_EQ(snapSize({0, 0}), (Size{3500, 2800}));
  EXPECT_EQ(snapSize({3599, 2899}), (Size{3500, 2800}));
}

TEST(Snapping, FromTheThresholdsOnTheSizeStays) {
  EXPECT_EQ(snapSize({3600, 2900}), (Size{3600, 2900}));
  EXPECT_EQ(snapSize({32767, 32767}), (Size{32767, 32767}));
}

TEST(Snapping, WidthAndHeightAreSnappedIndependently) {
  EXPECT_EQ(snapSize({5000, 2500}), (Size{5000, 2800}));
  EXPECT_EQ(snapSize({3000, 5000}), (Size{3500, 5000}));
}

TEST(Snapping, IsIdempotent) {
  const Size snapped = snapSize({100, 100});
  EXPECT_EQ(snapSize(snapped), snapped);
}

TEST(Layout, FollowsTheWindow) {
  const auto layout = layOut({6000, 5000}, 2100);
  EXPECT_EQ(layout.inputLeft, 750);
  EXPECT_EQ(layout.inputWidth, 4250);
  EXPECT_EQ(layout.exitLeft, 5100);
  EXPECT_EQ(layout.listLeft, 30);
  EXPECT_EQ(layout.listTop, 600);
  EXPECT_EQ(layout.listHeight, 4000);
  EXPECT_EQ(layout.splitter, (Box{2130, 600, 20, 4000}));
  EXPECT_EQ(layout.pane, (Box{2150, 600, 3700, 4000}));
}

TEST(Layout, OfTheSmallestWindow) {
  const auto layout = layOut({3500, 2800}, 2000);
  EXPECT_EQ(layout.inputWidth, 1750);
  EXPECT_EQ(layout.exitLeft, 2600);
  EXPECT_EQ(layout.listHeight, 1800);
  EXPECT_EQ(layout.splitter, (Box{2030, 600, 20, 1800}));
  EXPECT_EQ(layout.pane, (Box{2050, 600, 1300, 1800}));
}

TEST(Layout, ThePaneBeginsWhereTheSplitterEnds) {
  for (int width = 3600; width < 32767; width += 997) {
    for (int list = 0; list < 3100; list += 331) {
      const auto layout = layOut({width, 4000}, list);
      EXPECT_EQ(layout.listLeft + list, layout.splitter.left);
      EXPECT_EQ(layout.splitter.left + layout.splitter.width, layout.pane.left);
      EXPECT_EQ(layout.pane.left + layout.pane.width, width - 150);
    }
  }
}

TEST(Layout, TheWidestListIs200TwipsNarrowerThanTheWindow) {
  EXPECT_TRUE(lookup::leavesRoomForPane({5000, 4000}, 2100));
  EXPECT_TRUE(lookup::leavesRoomForPane({5000, 4000}, 4799));
  EXPECT_FALSE(lookup::leavesRoomForPane({5000, 4000}, 4800));
  EXPECT_FALSE(lookup::leavesRoomForPane({5000, 4000}, 32767));
}

TEST(Layout, TheRoomIsThatOfTheSnappedWindow) {
  EXPECT_TRUE(lookup::leavesRoomForPane({0, 0}, 3299));
  EXPECT_FALSE(lookup::leavesRoomForPane({0, 0}, 3300));
}

TEST(DropOnTheList, Below1600Gives1600) {
  EXPECT_EQ(widthAfterDropOnList(0), 1600);
  EXPECT_EQ(widthAfterDropOnList(-50), 1600);
  EXPECT_EQ(widthAfterDropOnList(1599), 1600);
}

TEST(DropOnTheList, From1600OnTakesOff30) {
  EXPECT_EQ(widthAfterDropOnList(1600), 1570);
  EXPECT_EQ(widthAfterDropOnList(1629), 1599);
  EXPECT_EQ(widthAfterDropOnList(1630), 1600);
  EXPECT_EQ(widthAfterDropOnList(2100), 2070);
}

TEST(DropOnThePane, AddsToTheListsWidth) {
  EXPECT_EQ(widthAfterDropOnPane(9000, 2000, 500), 2500);
  EXPECT_EQ(widthAfterDropOnPane(9000, 2000, 0), 2000);
  EXPECT_EQ(widthAfterDropOnPane(9000, 2000, -100), 1900);
}

TEST(DropOnThePane, IsLimitedByTheWindow) {
  EXPECT_EQ(widthAfterDropOnPane(5000, 2000, 3000), 2150);
  EXPECT_EQ(widthAfterDropOnPane(9000, 2000, 3000), 3000);
  EXPECT_EQ(widthAfterDropOnPane(3500, 1600, 3000), 1650);
  EXPECT_EQ(widthAfterDropOnPane(7699, 2000, 9000), 3049);
  EXPECT_EQ(widthAfterDropOnPane(7700, 2000, 9000), 3000);
}

TEST(DropOnThePane, TheLimitIsRoundedDown) {
  EXPECT_EQ(widthAfterDropOnPane(3501, 2000, 3000), 1650);
  EXPECT_EQ(widthAfterDropOnPane(3502, 2000, 3000), 1650);
  EXPECT_EQ(widthAfterDropOnPane(3503, 2000, 3000), 1651);
}

TEST(DropOnThePane, ALimitBelowTheListsWidthNarrowsIt) {
  EXPECT_EQ(widthAfterDropOnPane(3500, 2000, 10), 1650);
}

TEST(WidthToKeep, IsTheListsOwnWhereThePaneHasRoom) {
  EXPECT_EQ(widthToKeep({3500, 3200}, 2000), 2000);
  EXPECT_EQ(widthToKeep({9000, 5000}, 5000), 5000);
  EXPECT_EQ(widthToKeep({3500, 3200}, 3299), 3299);
  EXPECT_EQ(widthToKeep({3500, 3200}, 0), 0);
}

TEST(WidthToKeep, LeavesThePaneRoomAtTheNextOpening) {
  EXPECT_EQ(widthToKeep({3500, 5000}, 5000), 1650);
  for (const int width : {0, 3000, 3500, 3600, 7699, 7700, 32767}) {
    for (const int list : {0, 1600, 3299, 3300, 9000, 32767}) {
      EXPECT_TRUE(lookup::leavesRoomForPane({width, 3200}, widthToKeep({width, 3200}, list)))
          << width << ' ' << list;
    }
  }
}

}  // namespace
