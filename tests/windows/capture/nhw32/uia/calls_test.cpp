// How many calls to the program a question takes.
#include <algorithm>
#include <string>

#include "tests/support/window/uia_test.h"

namespace support {
namespace {

using UiaCallsTest = UiaTest;

TEST_F(UiaCallsTest, AWordTakesThirteen) {
  showText(u"one hello two");
  EXPECT_EQ(remoteCallsFor(grid::at(0, 6), u"hello"), 13U);
  EXPECT_EQ(remoteCallsFor(grid::at(0, 6, 8), u"hello"), 15U) << "right of a character's middle";
  EXPECT_EQ(remoteCallsFor(grid::at(0, 4), u"hello"), 12U) << "its first character";
}

TEST_F(UiaCallsTest, AnElementAboveTakesOneMore) {
  plan().elements.resize(4);
  plan().elements.back().text = true;
  plan().text = u"one hello two";
  EXPECT_EQ(remoteCallsFor(grid::at(0, 6), u"hello"), 16U);
}

TEST_F(UiaCallsTest, ABlankTakesFive) {
  showText(u"one hello two");
  EXPECT_EQ(remoteCallsFor(grid::at(0, 3), u""), 5U);
}

TEST_F(UiaCallsTest, CharactersOfTwoUnitsTakeTwoMore) {
  showText(u"\U0001F600one hello two");
  EXPECT_EQ(remoteCallsFor(grid::at(0, 8), u"hello"), 15U);
}

TEST_F(UiaCallsTest, ARowOfTwoHundredColumnsIsHalvedEightTimesAtMost) {
  plan().tellsRowOnly = true;
  std::u16string row;
  while (row.size() < 198) row += u"to ";
  showText(row + u"do");
  std::size_t halved = 0;
  std::size_t most = 0;
  for (int column = 3; column < 198; column += 3) {
    const std::size_t before = uia_.times("GetBoundingRectangles");
    most = std::max(most, remoteCallsFor(grid::at(0, column), u"to"));
    // The others are of the character, the line, the letter and the word.
    halved = std::max(halved, uia_.times("GetBoundingRectangles") - before - 4);
  }
  EXPECT_EQ(halved, 8U);
  EXPECT_EQ(most, 38U);
}

TEST_F(UiaCallsTest, BlanksAtARowsEndAreNotHalved) {
  plan().tellsRowOnly = true;
  showText(u"one two");
  const std::size_t calls = remoteCallsFor(grid::at(0, 5), u"two");
  showText(u"one two" + std::u16string(193, u' '));
  EXPECT_EQ(remoteCallsFor(grid::at(0, 5), u"two"), calls);
}

TEST_F(UiaCallsTest, ACellTakesFour) {
  plan().elements.front() = {.type = nhw32::kDataItemControlType,
                             .value = u"word",
                             .name = u"A1",
                             .place = {100, 200, 80, 20}};
  EXPECT_EQ(remoteCallsFor({150, 205}, u"word"), 4U) << "with the look for a parent";
}

}  // namespace
}  // namespace support
