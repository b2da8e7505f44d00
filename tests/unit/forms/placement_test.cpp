#include "forms/placement.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <vector>

namespace {

using forms::centred;
using forms::distanceOutside;
using forms::meet;
using forms::PixelBox;
using forms::placeAtBar;
using forms::placeBeside;
using forms::Raise;
using forms::raised;
using forms::Rank;
using forms::resizedAtDraggedSide;
using forms::withTitleBarOn;

constexpr PixelBox kWork{0, 0, 1280, 1024};

TEST(Meet, NeedsACommonPixel) {
  EXPECT_TRUE(meet({0, 0, 10, 10}, {9, 9, 20, 20}));
  EXPECT_FALSE(meet({0, 0, 10, 10}, {10, 0, 20, 10}));
  EXPECT_FALSE(meet({0, 0, 10, 10}, {0, 10, 10, 20}));
  EXPECT_TRUE(meet({0, 0, 10, 10}, {-5, 4, 50, 5}));
}

TEST(Centred, LiesInTheMiddleOfTheOther) {
  EXPECT_EQ(centred({0, 0, 100, 50}, {200, 200, 600, 400}, kWork), (PixelBox{350, 275, 450, 325}));
}

TEST(Centred, StaysInsideTheWorkArea) {
  EXPECT_EQ(centred({0, 0, 300, 200}, {0, 0, 40, 40}, kWork), (PixelBox{0, 0, 300, 200}));
  EXPECT_EQ(centred({0, 0, 300, 200}, {1270, 1000, 1300, 1100}, kWork),
            (PixelBox{980, 824, 1280, 1024}));
}

TEST(Centred, IsNoLargerThanTheWorkArea) {
  EXPECT_EQ(centred({0, 0, 3000, 200}, kWork, kWork), (PixelBox{0, 412, 1280, 612}));
}

TEST(PlaceAtBar, IsJustBelowAtTheBarsLeftEdge) {
  EXPECT_EQ(placeAtBar({7, 9, 207, 109}, {300, 25, 455, 50}, kWork), (PixelBox{300, 50, 500, 150}));
}

TEST(PlaceAtBar, IsMovedToTheLeftAtTheRightEdge) {
  EXPECT_EQ(placeAtBar({0, 0, 200, 100}, {1200, 25, 1355, 50}, kWork),
            (PixelBox{1080, 50, 1280, 150}));
}

TEST(PlaceAtBar, IsJustAboveWhereThereIsNoRoomBelow) {
  EXPECT_EQ(placeAtBar({0, 0, 200, 100}, {300, 950, 455, 975}, kWork),
            (PixelBox{300, 850, 500, 950}));
}

TEST(PlaceAtBar, LiesInTheWorkAreaWhereThereIsRoomOnNeitherSide) {
  constexpr PixelBox kLow{0, 0, 1280, 130};
  EXPECT_EQ(placeAtBar({0, 0, 200, 100}, {300, 50, 455, 75}, kLow), (PixelBox{300, 30, 500, 130}));
}

TEST(PlaceAtBar, LeftOfAndAboveThePrimaryMonitorAsWell) {
  constexpr PixelBox kOther{-1920, -1080, 0, -40};
  EXPECT_EQ(placeAtBar({0, 0, 200, 100}, {-2000, -1090, -1845, -1065}, kOther),
            (PixelBox{-1920, -1065, -1720, -965}));
  EXPECT_EQ(placeAtBar({0, 0, 200, 100}, {-100, -60, 55, -35}, kOther),
            (PixelBox{-200, -160, 0, -60}));
}

TEST(PlaceAtBar, WhatIsLargerThanTheWorkAreaBeginsInItsCorner) {
  EXPECT_EQ(placeAtBar({0, 0, 2184, 2000}, {300, 25, 455, 50}, kWork),
            (PixelBox{0, 0, 2184, 2000}));
}

TEST(WithTitleBarOn, LeavesAWindowWhereItsTitleBarCanBeTaken) {
  for (const PixelBox& box : {PixelBox{0, 0, 200, 100},
                              {1190, 994, 1390, 1094},
                              {-110, 500, 90, 600},
                              {-50, 0, 1500, 1200}}) {
    EXPECT_EQ(withTitleBarOn(box, kWork, 30), box);
  }
}

TEST(WithTitleBarOn, MovesItNoFartherThanThat) {
  EXPECT_EQ(withTitleBarOn({2000, 1500, 2200, 1600}, kWork, 30), (PixelBox{1190, 994, 1390, 1094}));
  EXPECT_EQ(withTitleBarOn({-500, -500, -300, -400}, kWork, 30), (PixelBox{-110, 0, 90, 100}));
}

TEST(WithTitleBarOn, ANarrowWindowIsSeenInItsWholeWidth) {
  EXPECT_EQ(withTitleBarOn({1270, 10, 1310, 60}, kWork, 30), (PixelBox{1240, 10, 1280, 60}));
}

TEST(ResizedAtDraggedSide, MovesTheDraggedSidesOnly) {
  constexpr PixelBox kDragged{100, 200, 150, 260};
  EXPECT_EQ(resizedAtDraggedSide(kDragged, 233, 190, false, false), (PixelBox{100, 200, 333, 390}));
  EXPECT_EQ(resizedAtDraggedSide(kDragged, 233, 190, true, false), (PixelBox{-83, 200, 150, 390}));
  EXPECT_EQ(resizedAtDraggedSide(kDragged, 233, 190, false, true), (PixelBox{100, 70, 333, 260}));
  EXPECT_EQ(resizedAtDraggedSide(kDragged, 233, 190, true, true), (PixelBox{-83, 70, 150, 260}));
}

TEST(DistanceOutside, IsCountedFromTheNearestPixel) {
  EXPECT_EQ(distanceOutside(97, 100, 102), -3);
  EXPECT_EQ(distanceOutside(99, 100, 102), -1);
  EXPECT_EQ(distanceOutside(100, 100, 102), 0);
  EXPECT_EQ(distanceOutside(101, 100, 102), 0);
  EXPECT_EQ(distanceOutside(102, 100, 102), 1);
  EXPECT_EQ(distanceOutside(104, 100, 102), 3);
}

TEST(PlaceBeside, IsTheWantedPlaceWhereThatIsFree) {
  const PixelBox wanted{400, 400, 600, 500};
  EXPECT_EQ(placeBeside(wanted, kWork, {}), wanted);
  EXPECT_EQ(placeBeside(wanted, kWork, std::array{PixelBox{600, 400, 700, 500}}), wanted);
}

TEST(PlaceBeside, IsTheNearestSideOfWhatLiesThere) {
  const PixelBox wanted{400, 400, 600, 500};
  // 50 pixels up, 110 down, 150 left, 250 right.
  EXPECT_EQ(placeBeside(wanted, kWork, std::array{PixelBox{550, 450, 650, 510}}),
            (PixelBox{400, 350, 600, 450}));
}

TEST(PlaceBeside, TakesAnotherSideWhereTheNearestLeavesTheWorkArea) {
  const PixelBox wanted{400, 20, 600, 120};
  EXPECT_EQ(placeBeside(wanted, kWork, std::array{PixelBox{590, 60, 900, 200}}),
            (PixelBox{390, 20, 590, 120}));
}

TEST(PlaceBeside, PassesBetweenSeveral) {
  const PixelBox wanted{400, 400, 600, 500};
  const std::array obstacles{PixelBox{300, 390, 700, 510}, PixelBox{300, 100, 700, 310},
                             PixelBox{300, 600, 700, 1024}};
  EXPECT_EQ(placeBeside(wanted, kWork, obstacles), (PixelBox{100, 400, 300, 500}));
}

TEST(PlaceBeside, IsNoneWhereThereIsNoRoom) {
  EXPECT_EQ(placeBeside({400, 400, 1000, 900}, kWork, std::array{PixelBox{300, 200, 1000, 800}}),
            std::nullopt);
}

/// Whether there is a free place within `reach` of the wanted one, by trying all.
bool anyNearer(const PixelBox& wanted, const PixelBox& work, const std::vector<PixelBox>& obstacles,
               int reach) {
  for (int x = -reach; x <= reach; ++x) {
    for (int y = -reach; y <= reach; ++y) {
      const PixelBox place{wanted.left + x, wanted.top + y, wanted.right + x, wanted.bottom + y};
      if ((x * x) + (y * y) >= reach * reach || place.left < work.left || place.top < work.top ||
          place.right > work.right || place.bottom > work.bottom) {
        continue;
      }
      bool free = true;
      for (const PixelBox& obstacle : obstacles) free = free && !meet(place, obstacle);
      if (free) return true;
    }
  }
  return false;
}

TEST(PlaceBeside, IsFreeAndNoFreePlaceIsNearer) {
  std::mt19937 random(1);
  const auto upTo = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
  const PixelBox work{0, 0, 60, 50};
  int found = 0;
  for (int round = 0; round < 300; ++round) {
    const int left = upTo(40);
    const int top = upTo(30);
    const PixelBox wanted{left, top, left + 1 + upTo(60 - left - 1), top + 1 + upTo(50 - top - 1)};
    std::vector<PixelBox> obstacles;
    for (int i = upTo(3); i > 0; --i) {
      const int x = upTo(50);
      const int y = upTo(40);
      obstacles.push_back({x, y, x + 1 + upTo(25), y + 1 + upTo(25)});
    }
    const auto place = placeBeside(wanted, work, obstacles);
    if (!place) {
      EXPECT_FALSE(anyNearer(wanted, work, obstacles, 80));
      continue;
    }
    ++found;
    EXPECT_EQ(place->width(), wanted.width());
    EXPECT_EQ(place->height(), wanted.height());
    for (const PixelBox& obstacle : obstacles) EXPECT_FALSE(meet(*place, obstacle));
    const int x = place->left - wanted.left;
    const int y = place->top - wanted.top;
    int distance = 0;
    while (distance * distance < (x * x) + (y * y)) ++distance;
    EXPECT_FALSE(distance > 0 && anyNearer(wanted, work, obstacles, distance - 1));
  }
  EXPECT_GT(found, 100);
}

using Stack = std::vector<std::optional<Rank>>;
constexpr std::nullopt_t kOther = std::nullopt;

TEST(Raised, GoesBehindTheLastOfAHigherRank) {
  const Stack stack{Rank::kFloating, Rank::kNotice, Rank::kBar, Rank::kWindow};
  EXPECT_EQ(raised(stack, 0, Rank::kFloating), (Raise{Raise::Where::kBehind, 3}));
  EXPECT_EQ(raised(Stack{Rank::kNotice, Rank::kFloating, Rank::kBar}, 2, Rank::kBar),
            (Raise{Raise::Where::kBehind, 0}));
}

TEST(Raised, StaysWhereItIsInItsPlace) {
  EXPECT_EQ(raised(Stack{Rank::kBar, Rank::kFloating}, 1, Rank::kFloating).where,
            Raise::Where::kStays);
  EXPECT_EQ(raised(Stack{Rank::kBar, Rank::kFloating, kOther}, 1, Rank::kFloating).where,
            Raise::Where::kStays);
  EXPECT_EQ(raised(Stack{Rank::kBar, Rank::kFloating}, 0, Rank::kBar).where, Raise::Where::kStays);
}

TEST(Raised, GoesToTheTopWithoutAnyOfAHigherRank) {
  EXPECT_EQ(raised(Stack{kOther, Rank::kFloating}, 1, Rank::kFloating).where, Raise::Where::kTop);
  EXPECT_EQ(raised(Stack{Rank::kFloating, Rank::kBar}, 1, Rank::kBar).where, Raise::Where::kTop);
}

TEST(Raised, GoesToTheTopWhereThoseOfAHigherRankLieBelowAnotherProgram) {
  EXPECT_EQ(raised(Stack{kOther, Rank::kBar, Rank::kFloating}, 2, Rank::kFloating).where,
            Raise::Where::kTop);
  EXPECT_EQ(
      raised(Stack{Rank::kBar, kOther, Rank::kWindow, Rank::kFloating}, 3, Rank::kFloating).where,
      Raise::Where::kTop);
}

TEST(Raised, GoesBehindThoseThatLieAboveAnotherProgram) {
  EXPECT_EQ(raised(Stack{Rank::kBar, kOther, Rank::kFloating}, 2, Rank::kFloating),
            (Raise{Raise::Where::kBehind, 0}));
}

TEST(Raised, GoesToTheTopWhereItIsNotTopmostYet) {
  EXPECT_EQ(raised(Stack{Rank::kBar}, std::nullopt, Rank::kFloating).where, Raise::Where::kTop);
}

}  // namespace
