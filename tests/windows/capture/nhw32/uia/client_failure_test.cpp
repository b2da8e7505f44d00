#include <set>
#include <string>
#include <utility>

#include "tests/support/window/heap_blocks.h"
#include "tests/support/window/uia_test.h"

namespace support {
namespace {

using nhw32::Outcome;

/// A text two elements above the pointer, asked at a place that takes every kind of call.
class UiaClientFailureTest : public UiaTest {
 protected:
  UiaClientFailureTest() {
    plan().elements.resize(3);
    plan().elements.back().text = true;
    plan().text = u"one hello two";
  }

  /// The calls of a question that is answered.
  std::vector<std::string> callsOfAnAnswer() {
    log().calls.clear();
    EXPECT_EQ(wordAt(kPoint), u"hello");
    return std::exchange(log().calls, {});
  }

  /// Asks once for each call that there is, with trouble at that call.
  void troubleAtEachCall(Trouble trouble, Outcome expected) {
    const auto calls = callsOfAnAnswer();
    ASSERT_GT(calls.size(), 20U) << "with those that are answered by what was prefetched";
    for (trouble.call = 0; trouble.call < calls.size(); ++trouble.call) {
      log().calls.clear();
      plan().trouble = trouble;
      EXPECT_EQ(outcome(kPoint), expected) << trouble.call << " " << calls[trouble.call];
      EXPECT_EQ(log().calls.size(), trouble.call + 1) << "went on after " << calls[trouble.call];
      EXPECT_EQ(log().live, kKept) << "all but the client is given back";
      plan().trouble.reset();
      EXPECT_EQ(wordAt(kPoint), u"hello");
    }
  }

  const nhw32::ScreenPoint kPoint = grid::at(0, 6, 8);
};

TEST_F(UiaClientFailureTest, AFailureOfAnyCallIsNoWord) {
  troubleAtEachCall({.result = E_FAIL}, Outcome::kNone);
}

TEST_F(UiaClientFailureTest, AnElementThatVanishesIsNoWord) {
  troubleAtEachCall({.result = nhw32::UIA_E_ELEMENTNOTAVAILABLE}, Outcome::kNone);
}

TEST_F(UiaClientFailureTest, AnExceptionInAnyCallIsNoWord) {
  troubleAtEachCall({.throws = true}, Outcome::kNone);
}

TEST_F(UiaClientFailureTest, ACallThatRanOutOfTimeEndsTheQuestion) {
  troubleAtEachCall({.result = nhw32::UIA_E_TIMEOUT}, Outcome::kUiaOutOfTime);
}

TEST_F(UiaClientFailureTest, SuccessWithoutAResultIsNoWord) {
  const std::set<std::string> needed = {"ElementFromPointBuildCache", "GetParentElementBuildCache",
                                        "RangeFromPoint", "Clone", "GetText"};
  const auto calls = callsOfAnAnswer();
  for (std::size_t i = 0; i < calls.size(); ++i) {
    if (!needed.contains(calls[i])) continue;
    log().calls.clear();
    plan().trouble = Trouble{.call = i, .result = S_OK};
    EXPECT_EQ(outcome(kPoint), Outcome::kNone) << i << " " << calls[i];
  }
}

TEST_F(UiaClientFailureTest, SuccessWithoutAnAnswerIsNoWrongWord) {
  const auto calls = callsOfAnAnswer();
  for (std::size_t i = 0; i < calls.size(); ++i) {
    // An end that does not move looks like the end of the text.
    if (calls[i] == "MoveEndpointByUnit") continue;
    log().calls.clear();
    plan().trouble = Trouble{.call = i, .result = S_OK};
    const auto word = wordAt(kPoint);
    EXPECT_TRUE(word.empty() || word == u"hello") << i << " " << calls[i];
  }
}

TEST_F(UiaClientFailureTest, RectanglesThatMakeNoSenseAreNone) {
  for (const auto kind :
       {Rectangles::kNothing, Rectangles::kNone, Rectangles::kOdd, Rectangles::kIntegers,
        Rectangles::kTwoDimensions, Rectangles::kInfinite}) {
    plan().rectangles = kind;
    EXPECT_EQ(outcome(kPoint), Outcome::kNone) << static_cast<int>(kind);
  }
  EXPECT_EQ(uia_.times("GetText"), 0U);
}

TEST_F(UiaClientFailureTest, LeavesNoMemoryBehind) {
  constexpr std::size_t kQuestions = 300;
  for (int i = 0; i < 50; ++i) callsOfAnAnswer();
  const std::size_t before = heapBlocks();
  for (std::size_t i = 0; i < kQuestions; ++i) callsOfAnAnswer();
  plan().rectangles = Rectangles::kTwoDimensions;
  for (std::size_t i = 0; i < kQuestions; ++i) {
    EXPECT_EQ(outcome(kPoint), Outcome::kNone);
    log().calls.clear();
  }
  EXPECT_LT(heapBlocks(), before + kQuestions / 2);
}

}  // namespace
}  // namespace support
