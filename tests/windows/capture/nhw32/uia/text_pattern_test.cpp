#include <string>

#include "tests/support/window/uia_test.h"

namespace support {
namespace {

using nhw32::Outcome;

class UiaTextPatternTest : public UiaTest {
 protected:
  /// A text in the ancestor that lies so many elements above the one under the pointer.
  void showTextAbove(std::size_t ancestors) {
    plan().elements.assign(ancestors + 1, {});
    plan().elements.back().text = true;
    plan().text = u"word";
  }
};

TEST_F(UiaTextPatternTest, FindsNoneWhereNoElementHasText) {
  plan().text = u"word";
  plan().elements.assign(4, {});
  EXPECT_EQ(outcome(grid::at(0, 1)), Outcome::kNone);
  EXPECT_EQ(uia_.times("GetCachedPatternAs"), 4U);
  EXPECT_TRUE(nothingRead());
}

TEST_F(UiaTextPatternTest, FindsNoneWhereThereIsNoElement) {
  plan().elements.clear();
  EXPECT_EQ(outcome(grid::at(0, 1)), Outcome::kNone);
}

TEST_F(UiaTextPatternTest, LooksForTextInTenAncestors) {
  for (const std::size_t ancestors : {0U, 1U, 3U, 10U}) {
    showTextAbove(ancestors);
    EXPECT_EQ(wordAt(grid::at(0, 1)), u"word") << ancestors;
  }
  log().calls.clear();
  showTextAbove(11);
  EXPECT_EQ(outcome(grid::at(0, 1)), Outcome::kNone);
  EXPECT_EQ(uia_.times("GetParentElementBuildCache"), 10U);
}

TEST_F(UiaTextPatternTest, StopsAtTheNearestText) {
  showTextAbove(5);
  plan().elements[2].text = true;
  EXPECT_EQ(wordAt(grid::at(0, 1)), u"word");
  EXPECT_EQ(uia_.times("GetParentElementBuildCache"), 2U);
}

TEST_F(UiaTextPatternTest, NeverReadsAPasswordField) {
  showText(u"secret");
  plan().elements[0].password = true;
  EXPECT_EQ(outcome(grid::at(0, 1)), Outcome::kNone);
  EXPECT_TRUE(nothingRead());
  EXPECT_EQ(log().calls.size(), 2U);
}

TEST_F(UiaTextPatternTest, NeverReadsInsideAPasswordField) {
  for (const std::size_t password : {1U, 2U, 3U}) {
    showTextAbove(3);
    plan().elements[password].password = true;
    EXPECT_EQ(outcome(grid::at(0, 1)), Outcome::kNone) << password;
    EXPECT_TRUE(nothingRead());
  }
}

TEST_F(UiaTextPatternTest, ReadsNothingWhereItIsNotKnownWhetherItIsAPassword) {
  showText(u"secret");
  plan().elements[0].passwordType = VT_EMPTY;
  EXPECT_EQ(outcome(grid::at(0, 1)), Outcome::kNone);
  plan().elements[0].passwordType = VT_I4;
  EXPECT_EQ(outcome(grid::at(0, 1)), Outcome::kNone);
  EXPECT_TRUE(nothingRead());
}

TEST_F(UiaTextPatternTest, LeavesAnotherProgramsWindowOverTheOneAskedAlone) {
  showText(u"word");
  plan().elements[0].process = GetCurrentProcessId() + 4;
  EXPECT_EQ(outcome(grid::at(0, 1)), Outcome::kNone);
  plan().elements[0].window = GetDesktopWindow();
  EXPECT_EQ(outcome(grid::at(0, 1)), Outcome::kNone);
  const auto other = makeWindow();
  plan().elements[0].window = other.get();
  EXPECT_EQ(outcome(grid::at(0, 1)), Outcome::kNone);
  EXPECT_TRUE(nothingRead());
}

TEST_F(UiaTextPatternTest, TakesAnotherProcessInTheSameWindow) {
  const auto child = makeWindow(window_.get());
  showTextAbove(1);
  for (auto& element : plan().elements) element.process = GetCurrentProcessId() + 4;
  plan().elements[0].window = child.get();
  EXPECT_EQ(wordAt(grid::at(0, 1)), u"word");
  plan().elements[0].window = window_.get();
  EXPECT_EQ(wordAt(grid::at(0, 1)), u"word");
}

TEST_F(UiaTextPatternTest, AsksNothingOfAHiddenWindow) {
  showText(u"word");
  ShowWindow(window_.get(), SW_HIDE);
  EXPECT_EQ(outcome(grid::at(0, 1)), Outcome::kNone);
  EXPECT_TRUE(log().calls.empty());
}

TEST_F(UiaTextPatternTest, FindsNoneInAWindowThatHidesOrGoesMeanwhile) {
  showText(u"word");
  EXPECT_EQ(wordAt(grid::at(0, 1)), u"word");
  const std::size_t last = log().calls.size();
  log().calls.clear();
  plan().onCall = [&] {
    if (log().calls.size() == last) ShowWindow(window_.get(), SW_HIDE);
  };
  EXPECT_EQ(outcome(grid::at(0, 1)), Outcome::kNone);

  ShowWindow(window_.get(), SW_SHOWNOACTIVATE);
  log().calls.clear();
  log().unitsRead = 0;
  plan().onCall = [&] { window_.reset(); };
  EXPECT_EQ(outcome(grid::at(0, 1)), Outcome::kNone);
  EXPECT_TRUE(nothingRead());
}

TEST_F(UiaTextPatternTest, FindsNoneInAWindowThatShrinksOrMovesMeanwhile) {
  showText(u"word");
  EXPECT_EQ(wordAt(grid::at(0, 1)), u"word");
  const std::size_t last = log().calls.size();
  for (const RECT& place : {RECT{0, 0, 5, 9}, RECT{0, 3, 5, 9}}) {
    log().calls.clear();
    plan().onCall = [&] {
      if (log().calls.size() == last) {
        SetWindowPos(window_.get(), nullptr, place.left, place.top, place.right, place.bottom,
                     SWP_NOZORDER | SWP_NOACTIVATE);
      }
    };
    EXPECT_EQ(outcome(grid::at(0, 1)), Outcome::kNone);
    EXPECT_EQ(log().calls.size(), last);
    EXPECT_EQ(wordAt(grid::at(0, 1)), u"word");
  }
}

}  // namespace
}  // namespace support
