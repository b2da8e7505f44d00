#include "capture/nhw32/uia/geometry.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "tests/support/data/plain_readings.h"

namespace {

using nhw32::boxUnder;
using nhw32::ScreenBox;

TEST(BoxUnder, HoldsItsFirstPixelsAndNotThoseAfterIt) {
  const std::vector<double> box{10, 20, 30, 5};
  const ScreenBox whole{10, 20, 40, 25};
  EXPECT_EQ(boxUnder(box, {10, 20}), whole);
  EXPECT_EQ(boxUnder(box, {39, 24}), whole);
  for (const auto& beside : {nhw32::ScreenPoint{9, 20}, {10, 19}, {40, 24}, {39, 25}}) {
    EXPECT_EQ(boxUnder(box, beside), std::nullopt) << beside.x << ", " << beside.y;
  }
}

TEST(BoxUnder, TakesTheRectangleThatHoldsThePoint) {
  const std::vector<double> boxes{500, 0, 100, 20, 0, 20, 40, 20};
  EXPECT_EQ(boxUnder(boxes, {510, 5}), (ScreenBox{500, 0, 600, 20}));
  EXPECT_EQ(boxUnder(boxes, {5, 25}), (ScreenBox{0, 20, 40, 40}));
  EXPECT_EQ(boxUnder(boxes, {300, 25}), std::nullopt);
}

TEST(BoxUnder, WorksLeftOfAndAboveThePrimaryMonitor) {
  EXPECT_EQ(boxUnder(std::vector<double>{-1900, -500, 20, 10}, {-1890, -495}),
            (ScreenBox{-1900, -500, -1880, -490}));
}

TEST(BoxUnder, ReachesOutToWholePixels) {
  const std::vector<double> box{10.4, 20.6, 5.2, 5.2};
  EXPECT_EQ(boxUnder(box, {12, 22}), (ScreenBox{10, 20, 16, 26}));
  EXPECT_TRUE(boxUnder(box, {10, 22}));
  EXPECT_FALSE(boxUnder(box, {12, 20}));
}

TEST(BoxUnder, RefusesWhatIsNoRectangleOfAScreen) {
  constexpr double kInfinite = std::numeric_limits<double>::infinity();
  constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
  for (const std::vector<double>& numbers : {std::vector<double>{},
                                             {0},
                                             {0, 0, 50},
                                             {0, 0, 50, 50, 1},
                                             {0, 0, -50, 50},
                                             {0, 0, 50, -50},
                                             {-kInfinite, 0, kInfinite, 50},
                                             {0, 0, kInfinite, 50},
                                             {0, 0, 50, kNoNumber},
                                             {kNoNumber, 0, 50, 50},
                                             {0, -2e6, 50, 4e6},
                                             {0, 0, 0, 50}}) {
    EXPECT_EQ(boxUnder(numbers, {5, 5}), std::nullopt) << numbers.size();
  }
}

TEST(OneCharacter, IsAUnitAPairOrALineEnd) {
  EXPECT_FALSE(nhw32::isOneCharacter(u""));
  EXPECT_TRUE(nhw32::isOneCharacter(u"a"));
  EXPECT_TRUE(nhw32::isOneCharacter(u"\U0001F600"));
  EXPECT_TRUE(nhw32::isOneCharacter(u"\r\n"));
  EXPECT_FALSE(nhw32::isOneCharacter(u"abc"));
}

TEST(OnlyWord, StandsBetweenBlanks) {
  const auto only = [](std::u16string_view text) {
    return support::plainWord(nhw32::onlyWord(text).value_or(text::Readings()));
  };
  EXPECT_EQ(only(u"word"), u"word");
  EXPECT_EQ(only(u"\t word\u3000\u00A0\r\n"), u"word");
  EXPECT_EQ(only(u"well-known "), u"well-known");
  EXPECT_EQ(only(u"man's"), u"man");
  EXPECT_EQ(only(u" 中文"), u"中文");
}

TEST(OnlyWord, HasNoReadingsOfAPart) {
  using Words = std::vector<std::u16string>;
  const auto asked = [](std::u16string_view text) {
    Words words;
    const auto readings = nhw32::onlyWord(text).value_or(text::Readings());
    for (const text::Reading& reading : readings.candidates) words.push_back(reading.word);
    if (readings.otherwise) words.push_back(u"otherwise " + readings.otherwise->word);
    return words;
  };
  EXPECT_EQ(asked(u"AT&T "), Words{u"AT&T"});
  EXPECT_EQ(asked(u"e.g."), (Words{u"e.g.", u"e.g"}));
  EXPECT_EQ(asked(u"1st"), Words{u"1st"});
  EXPECT_EQ(asked(u"man's"), (Words{u"man's", u"man", u"otherwise man"}));
  EXPECT_EQ(asked(u"well-known"), (Words{u"well-known", u"otherwise well-known"}));
  EXPECT_EQ(asked(u"word."), (Words{u"word", u"word.", u"otherwise word"}));
}

TEST(OnlyWord, IsNoneAmongOthers) {
  for (const auto* text :
       {u"", u"  ", u"two words", u"word,", u"word..", u"(word", u"42", u"word中文"}) {
    EXPECT_FALSE(nhw32::onlyWord(text).has_value());
  }
}

TEST(LabelLength, IsWhatStandsBeforeAListItemsFirstCharacter) {
  EXPECT_EQ(nhw32::labelLength(u"\u2022\tH"), 2U);
  EXPECT_EQ(nhw32::labelLength(u"1.\tH"), 3U);
  EXPECT_EQ(nhw32::labelLength(u"a)\tb"), 3U);
  EXPECT_EQ(nhw32::labelLength(u"\u2022\t\U0001F600"), 2U);
  for (const auto* text : {u"", u"H", u"\t", u"\tH", u"\u2022\t", u"\u2022 H", u"\u2022\tHello",
                           u"\u2022\t ", u"a\t\t"}) {
    EXPECT_EQ(nhw32::labelLength(text), 0U);
  }
}

TEST(IsWordOrItem, AllowsALabelBeforeTheWord) {
  EXPECT_TRUE(nhw32::isWordOrItem(u"Hello", u"Hello"));
  EXPECT_TRUE(nhw32::isWordOrItem(u"\u2022\tHello", u"Hello"));
  for (const auto* text : {u"xHello", u"\u2022Hello", u"Hello ", u"\tHell", u""}) {
    EXPECT_FALSE(nhw32::isWordOrItem(text, u"Hello"));
  }
}

TEST(IsBlank, KnowsTheBlanks) {
  EXPECT_TRUE(nhw32::isBlank(u" \t\r\n\u00A0\u3000"));
  EXPECT_FALSE(nhw32::isBlank(u" a"));
}

}  // namespace
