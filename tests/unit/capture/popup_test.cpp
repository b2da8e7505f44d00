#include "capture/popup.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

using capture::hasMovedAway;
using capture::PopupMonitor;
using capture::PopupPlace;
using capture::popupPlace;
using capture::PopupSize;
using capture::popupSize;
using capture::PopupText;
using capture::popupText;

std::u16string letters(std::size_t count) { return std::u16string(count, u'x'); }

TEST(PopupTextTest, HasTheMeaningsOnTheSecondLine) {
  const PopupText text = popupText(u"cat", {u"A", u"B"});
  EXPECT_EQ(text.body, u"cat\r\nA；B");
  EXPECT_EQ(text.headLength, 5);
  EXPECT_EQ(text.meaningLength, 3);
}

TEST(PopupTextTest, HasNoSeparatorAfterTheLastMeaning) {
  EXPECT_EQ(popupText(u"cat", {u"猫"}).body, u"cat\r\n猫");
  EXPECT_EQ(popupText(u"cat", {u"", u"猫", u""}).body, u"cat\r\n；猫；");
}

TEST(PopupTextTest, SaysThatNothingWasFound) {
  const PopupText text = popupText(u"qwrt", {});
  EXPECT_EQ(text.body, u"qwrt\r\n<没找到>");
  EXPECT_EQ(text.headLength, 6);
  EXPECT_EQ(text.meaningLength, 5);
}

TEST(PopupTextTest, OfALengthBeyond16BitsIsAnError) {
  EXPECT_EQ(popupText(letters(32765), {}).headLength, 32767);
  EXPECT_THROW(popupText(letters(32766), {}), std::overflow_error);
  EXPECT_EQ(popupText(u"a", {letters(32767)}).meaningLength, 32767);
  EXPECT_THROW(popupText(u"a", {letters(32768)}), std::overflow_error);
}

TEST(PopupSizeTest, OfAShortMeaningFollowsTheHeadword) {
  EXPECT_EQ(popupSize(5, 3), (PopupSize{2500, 900}));
  EXPECT_EQ(popupSize(24, 29), (PopupSize{2500, 900}));
  EXPECT_EQ(popupSize(25, 29), (PopupSize{2600, 900}));
  EXPECT_EQ(popupSize(20, 29), (PopupSize{2500, 900}));
}

TEST(PopupSizeTest, OfALongerMeaningOnOneLineFollowsTheMeaning) {
  EXPECT_EQ(popupSize(6, 20), (PopupSize{4000, 900}));
  EXPECT_EQ(popupSize(6, 13), (PopupSize{2600, 900}));
  EXPECT_EQ(popupSize(6, 12), (PopupSize{2500, 900}));
  EXPECT_EQ(popupSize(4, 29), (PopupSize{5800, 900}));
}

TEST(PopupSizeTest, TheHeadwordDecidesUpToOneAndAHalfOfItsLength) {
  EXPECT_EQ(popupSize(18, 27).width, 2500);  // 18 x 100 + 100, raised
  EXPECT_EQ(popupSize(18, 28).width, 5600);
}

TEST(PopupSizeTest, OfSeveralLinesIsWide) {
  EXPECT_EQ(popupSize(6, 29).width, 5800);
  EXPECT_EQ(popupSize(6, 30), (PopupSize{6000, 900}));
  EXPECT_EQ(popupSize(6, 40), (PopupSize{6000, 900}));
  EXPECT_EQ(popupSize(6, 59), (PopupSize{6000, 900}));
  EXPECT_EQ(popupSize(6, 60), (PopupSize{6000, 1200}));
  EXPECT_EQ(popupSize(6, 90), (PopupSize{6000, 1500}));
}

TEST(PopupSizeTest, AHeadwordTooLongFor16BitsIsAnError) {
  EXPECT_EQ(popupSize(326, 5).width, 32700);
  EXPECT_THROW(popupSize(327, 5), std::overflow_error);
  EXPECT_EQ(popupSize(327, 30).width, 6000);
}

TEST(PopupSizeTest, MeaningsTooManyFor16BitsAreAnError) {
  EXPECT_EQ(popupSize(6, 3239), (PopupSize{6000, 32700}));
  EXPECT_THROW(popupSize(6, 3240), std::overflow_error);
}

TEST(PopupPlaceTest, IsBelowAndRightOfThePointer) {
  EXPECT_EQ(popupPlace(100, 200, {2500, 900}, {0, 1280, 96}), (PopupPlace{110, 210, 167, 60}));
  EXPECT_EQ(popupPlace(100, 200, {6000, 1200}, {0, 1280, 96}), (PopupPlace{110, 210, 400, 80}));
}

TEST(PopupPlaceTest, NearTheRightEdgeEnds30PixelsBeforeIt) {
  EXPECT_EQ(popupPlace(870, 0, {6000, 900}, {0, 1280, 96}).left, 880);
  const PopupPlace moved = popupPlace(871, 0, {6000, 900}, {0, 1280, 96});
  EXPECT_EQ(moved.left, 850);
  EXPECT_EQ(moved.left + moved.width, 1250);
  EXPECT_EQ(popupPlace(1279, 0, {4000, 900}, {0, 1280, 96}).left, 983);
}

TEST(PopupPlaceTest, HasNoLimitAtTheBottom) {
  EXPECT_EQ(popupPlace(100, 1023, {2500, 900}, {0, 1280, 96}).top, 1033);
}

TEST(PopupPlaceTest, GrowsWithTheResolution) {
  EXPECT_EQ(popupPlace(100, 200, {6000, 900}, {0, 1920, 144}), (PopupPlace{110, 210, 600, 90}));
  EXPECT_EQ(popupPlace(100, 200, {6000, 900}, {0, 3840, 192}), (PopupPlace{110, 210, 800, 120}));
  EXPECT_EQ(popupPlace(1900, 200, {6000, 900}, {0, 1920, 144}).left, 1290);
}

TEST(PopupPlaceTest, KeepsToTheMonitorUnderThePointer) {
  const PopupMonitor leftOne{-1280, 0, 96};
  EXPECT_EQ(popupPlace(-1270, -500, {6000, 900}, leftOne), (PopupPlace{-1260, -490, 400, 60}));
  EXPECT_EQ(popupPlace(-410, 0, {6000, 900}, leftOne).left, -400);
  EXPECT_EQ(popupPlace(-409, 0, {6000, 900}, leftOne).left, -430);
  const PopupMonitor rightOne{1280, 3200, 144};
  EXPECT_EQ(popupPlace(1300, 0, {6000, 900}, rightOne).left, 1310);
  EXPECT_EQ(popupPlace(3190, 0, {6000, 900}, rightOne).left, 2570);
}

TEST(PopupPlaceTest, AMovedEdgeBeyond16BitsIsAnError) {
  EXPECT_THROW(popupPlace(40000, 0, {6000, 900}, {0, 40000, 96}), std::overflow_error);
  EXPECT_EQ(popupPlace(-10, 0, {32700, 900}, {0, 1280, 96}).left, -930);
}

TEST(PointerAway, IsSixPixelsAlongEitherAxis) {
  EXPECT_FALSE(hasMovedAway(100, 100, 100, 100));
  EXPECT_FALSE(hasMovedAway(100, 100, 105, 95));
  EXPECT_FALSE(hasMovedAway(100, 100, 95, 105));
  EXPECT_TRUE(hasMovedAway(100, 100, 106, 100));
  EXPECT_TRUE(hasMovedAway(100, 100, 94, 100));
  EXPECT_TRUE(hasMovedAway(100, 100, 100, 106));
  EXPECT_TRUE(hasMovedAway(100, 100, 100, 94));
  EXPECT_TRUE(hasMovedAway(-3, -3, 3, -3));
}

}  // namespace
