#include <string>

#include "tests/support/data/plain_readings.h"
#include "tests/support/window/uia_test.h"

namespace support {
namespace {

using nhw32::Outcome;
using nhw32::ScreenPoint;

class UiaTextTest : public UiaTest {};

TEST_F(UiaTextTest, FindsTheWordUnderEveryPixelOfIt) {
  showText(u"one hello two");
  for (int column = 4; column < 9; ++column) {
    for (int right = 0; right < grid::kWidth; ++right) {
      const auto answer = ask(grid::at(0, column, right));
      ASSERT_EQ(answer.outcome, Outcome::kWord) << column << " + " << right;
      ASSERT_EQ(plainWord(answer.word.readings), u"hello") << column << " + " << right;
      ASSERT_EQ(answer.word.box, grid::box(0, 4, 5));
    }
  }
}

TEST_F(UiaTextTest, FindsNoneOnBlanksAndOtherCharacters) {
  showText(u"one  two, 42 \t.");
  for (const int column : {3, 4, 8, 9, 10, 11, 12, 13, 14}) {
    for (const int right : {0, 4, 5, 9}) {
      EXPECT_EQ(outcome(grid::at(0, column, right)), Outcome::kNone) << column << " + " << right;
    }
  }
}

TEST_F(UiaTextTest, TakesNoNearestWordThatIsNotUnderThePoint) {
  showText(u"first\nsecond");
  const ScreenPoint besides[] = {
      grid::at(0, -1), grid::at(-1, 0), grid::at(0, 5),   grid::at(0, 5, 0), grid::at(0, 300),
      grid::at(2, 0),  grid::at(1, 6),  grid::at(50, 50), {-30000, -30000},  grid::at(0, -1, 9)};
  for (const auto& point : besides) {
    EXPECT_EQ(outcome(point), Outcome::kNone) << point.x << ", " << point.y;
  }
  EXPECT_EQ(wordAt(grid::at(0, 4, 9)), u"first");
  EXPECT_EQ(wordAt(grid::at(1, 0, 0)), u"second");
  EXPECT_EQ(wordAt(grid::at(1, 5, 9)), u"second");
}

TEST_F(UiaTextTest, FindsWordsInLaterLines) {
  showText(u"a\nbb cc\nddd");
  const auto answer = ask(grid::at(1, 3));
  EXPECT_EQ(plainWord(answer.word.readings), u"cc");
  EXPECT_EQ(answer.word.box, grid::box(1, 3, 2));
}

TEST_F(UiaTextTest, KeepsWordsWithHyphensAndApostrophesWhole) {
  showText(u"a well-known don\u2019t 'tis");
  for (const int column : {2, 5, 6, 7, 11}) {
    EXPECT_EQ(wordAt(grid::at(0, column)), u"well-known") << column;
  }
  EXPECT_EQ(wordAt(grid::at(0, 16)), u"don't");
  EXPECT_EQ(wordAt(grid::at(0, 17)), u"don't");
  EXPECT_EQ(wordAt(grid::at(0, 19)), u"");
  EXPECT_EQ(wordAt(grid::at(0, 20)), u"tis");
}

TEST_F(UiaTextTest, JoinsAWordThatALinesEndDivides) {
  showText(u"an associ-\r\nated word");
  for (const Units units : {Units::kCharacters, Units::kCharactersWithCrLf}) {
    plan().units = units;
    for (const auto& place : {grid::at(0, 5), grid::at(1, 2)}) {
      const nhw32::Answer answer = ask(place);
      EXPECT_EQ(plainWord(answer.word.readings), u"associated") << static_cast<int>(units);
      ASSERT_FALSE(answer.word.readings.candidates.empty());
      EXPECT_EQ(answer.word.readings.candidates.front().word, u"associated");
      EXPECT_TRUE(answer.word.box.left <= place.x && place.x < answer.word.box.right);
    }
  }
}

TEST_F(UiaTextTest, JoinsADividedWordAcrossADeepIndentation) {
  showText(u"associ-\n" + std::u16string(127, u' ') + u"ated");
  EXPECT_EQ(wordAt(grid::at(0, 0)), u"associated");
  EXPECT_EQ(wordAt(grid::at(1, 130)), u"associated");
}

TEST_F(UiaTextTest, PartsEnglishFromChinese) {
  showText(u"请看word这里");
  EXPECT_EQ(wordAt(grid::at(0, 2)), u"word");
  EXPECT_EQ(wordAt(grid::at(0, 5, 9)), u"word");
  EXPECT_EQ(wordAt(grid::at(0, 6)), u"这里");
  EXPECT_EQ(ask(grid::at(0, 3)).word.box, grid::box(0, 2, 4));
}

TEST_F(UiaTextTest, ReadsSurrogatePairs) {
  showText(u"\U0001F600word\U0001F600 \U0001F600");
  EXPECT_EQ(wordAt(grid::at(0, 2)), u"word");
  EXPECT_EQ(wordAt(grid::at(0, 5)), u"word");
  EXPECT_EQ(outcome(grid::at(0, 0)), Outcome::kNone);
  EXPECT_EQ(outcome(grid::at(0, 9)), Outcome::kNone);
}

TEST_F(UiaTextTest, ReadsTheFirstWordOfAListItem) {
  showText(u"before\n\u2022\tHello there\n1.\tWorld\n\u2022\t\u4E2D");
  plan().units = Units::kListItems;
  for (int column = 2; column < 7; ++column) {
    const auto answer = ask(grid::at(1, column));
    EXPECT_EQ(plainWord(answer.word.readings), u"Hello") << column;
    EXPECT_LE(answer.word.box.left, grid::at(1, 2).x);
    EXPECT_EQ(answer.word.box.right, grid::box(1, 2, 5).right);
  }
  EXPECT_EQ(wordAt(grid::at(1, 9)), u"there");
  for (int column = 2; column < 7; ++column) {
    EXPECT_EQ(wordAt(grid::at(2, column)), u"World") << column;
  }
  EXPECT_EQ(wordAt(grid::at(0, 3)), u"before");
}

TEST_F(UiaTextTest, BlanksThatAreLeftOutDoNoHarm) {
  showText(u"one      hello   \n  two     \nlast  ");
  plan().trimsBlanks = true;
  EXPECT_EQ(wordAt(grid::at(0, 11)), u"hello");
  EXPECT_EQ(wordAt(grid::at(0, 1)), u"one");
  EXPECT_EQ(wordAt(grid::at(1, 3)), u"two");
  EXPECT_EQ(wordAt(grid::at(2, 3)), u"last");
  EXPECT_EQ(outcome(grid::at(0, 5)), Outcome::kNone);
}

TEST_F(UiaTextTest, ReadsTextsWhoseCharacterUnitIsAWord) {
  showText(u"one hello  two");
  plan().units = Units::kWords;
  EXPECT_EQ(wordAt(grid::at(0, 6)), u"hello");
  EXPECT_EQ(wordAt(grid::at(0, 13)), u"two");
  showText(u"at AT&T e.g. so");
  for (const auto& [column, word] : {std::pair(4, u"AT&T"), {9, u"e.g."}}) {
    const nhw32::Answer answer = ask(grid::at(0, column));
    ASSERT_EQ(answer.outcome, Outcome::kWord) << column;
    EXPECT_EQ(answer.word.readings.candidates.front().word, word);
  }
}

TEST_F(UiaTextTest, FindsNoneIfTheUnitHoldsMoreThanAWord) {
  showText(u"one hello two");
  plan().units = Units::kAll;
  EXPECT_EQ(outcome(grid::at(0, 6)), Outcome::kNone);
  showText(u" hello ");
  EXPECT_EQ(wordAt(grid::at(0, 3)), u"hello");
}

TEST_F(UiaTextTest, ReadsOfAMegabyteOnlyWhatLiesAround) {
  std::u16string text;
  while (text.size() < 1'000'000) text += u"many words in every line of it\n";
  showText(text);
  constexpr std::size_t kMost = 800;
  EXPECT_EQ(wordAt(grid::at(30'000, 6)), u"words");
  EXPECT_LE(log().unitsRead, kMost);

  log().unitsRead = 0;
  plan().units = Units::kAll;
  EXPECT_EQ(outcome(grid::at(30'000, 6)), Outcome::kNone);
  EXPECT_LE(log().unitsRead, kMost);

  // One that hands out all of it whatever it is told.
  plan().keepsToLength = false;
  EXPECT_EQ(outcome(grid::at(30'000, 6)), Outcome::kNone);
  showText(u"word" + std::u16string(90'000, u' '));
  EXPECT_EQ(outcome(grid::at(0, 1)), Outcome::kNone);
  plan().text.resize(250);
  EXPECT_EQ(wordAt(grid::at(0, 1)), u"word");
}

TEST_F(UiaTextTest, FindsNoneInARunLongerThanWordsAre) {
  showText(std::u16string(128, u'a') + u" " + std::u16string(129, u'b'));
  EXPECT_EQ(wordAt(grid::at(0, 0)), std::u16string(128, u'a'));
  EXPECT_EQ(wordAt(grid::at(0, 127)), std::u16string(128, u'a'));
  for (const int column : {129, 193, 257}) {
    EXPECT_EQ(outcome(grid::at(0, column)), Outcome::kNone) << column;
  }
}

TEST_F(UiaTextTest, FindsNoneInAnEmptyText) {
  showText(u"");
  EXPECT_EQ(outcome(grid::at(0, 0)), Outcome::kNone);
  EXPECT_EQ(uia_.times("GetText"), 0U);
}

}  // namespace
}  // namespace support
