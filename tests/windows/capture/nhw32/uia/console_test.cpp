// Consoles, and other programs that tell no more of a point than its row.
#include <algorithm>
#include <array>
#include <string>

#include "tests/support/data/plain_readings.h"
#include "tests/support/window/uia_test.h"

namespace support {
namespace {

using nhw32::Outcome;
using nhw32::ScreenPoint;

class UiaLineTest : public UiaTest {
 protected:
  UiaLineTest() { plan().tellsRowOnly = true; }

  void expectWordAtEveryPixel(int row, int column, const std::u16string& word) {
    const int length = static_cast<int>(word.size());
    for (int i = 0; i < length; ++i) {
      for (int right = 0; right < grid::kWidth; ++right) {
        const auto answer = ask(grid::at(row, column + i, right));
        ASSERT_EQ(plainWord(answer.word.readings), word) << row << ", " << column + i;
        ASSERT_EQ(answer.word.box, grid::box(row, column, length));
      }
    }
  }
};

TEST_F(UiaLineTest, FindsTheLetterByHalvingItsLine) {
  showText(u"first line\r\none hello, two\r\n" + std::u16string(199, u' ') + u"a\r\nlast");
  expectWordAtEveryPixel(0, 0, u"first");
  expectWordAtEveryPixel(0, 6, u"line");
  expectWordAtEveryPixel(1, 0, u"one");
  expectWordAtEveryPixel(1, 4, u"hello");
  expectWordAtEveryPixel(1, 11, u"two");
  expectWordAtEveryPixel(3, 0, u"last");
}

TEST_F(UiaLineTest, FindsNoneBesideTheWords) {
  showText(u"one hello, 42\nlast   ");
  for (const ScreenPoint& point :
       {grid::at(0, 3), grid::at(0, 9), grid::at(0, 12), grid::at(0, 13), grid::at(0, 60),
        grid::at(0, -1), grid::at(1, 4), grid::at(1, 6), grid::at(1, 7), grid::at(2, 0)}) {
    EXPECT_EQ(outcome(point), Outcome::kNone) << point.x << ", " << point.y;
  }
  showText(u"     ");
  EXPECT_EQ(outcome(grid::at(0, 2)), Outcome::kNone);
  showText(u"");
  EXPECT_EQ(outcome(grid::at(0, 0)), Outcome::kNone);
}

TEST_F(UiaLineTest, BlanksThatAreLeftOutDoNoHarm) {
  plan().trimsBlanks = true;
  showText(u"one      hello   \n  two     \nlast");
  expectWordAtEveryPixel(0, 0, u"one");
  expectWordAtEveryPixel(0, 9, u"hello");
  expectWordAtEveryPixel(1, 2, u"two");
  EXPECT_EQ(outcome(grid::at(0, 6)), Outcome::kNone);
  EXPECT_EQ(outcome(grid::at(0, 15)), Outcome::kNone);
  EXPECT_EQ(outcome(grid::at(1, 7)), Outcome::kNone);
}

TEST_F(UiaLineTest, ReadsPairsAndChineseCharactersInALine) {
  showText(u"\U0001F600 one \u4E2D\u6587word \U0001F600\U0001F600");
  expectWordAtEveryPixel(0, 3, u"one");
  expectWordAtEveryPixel(0, 9, u"word");
  EXPECT_EQ(outcome(grid::at(0, 14)), Outcome::kNone);
}

TEST_F(UiaLineTest, GivesALineUpThatIsTooLong) {
  showText(std::u16string(2040, u' ') + u"word");
  EXPECT_EQ(wordAt(grid::at(0, 2041)), u"word");
  showText(std::u16string(2044, u' ') + u"word");
  EXPECT_EQ(outcome(grid::at(0, 2045)), Outcome::kNone);
}

/// A console's text: the element under the pointer, of another process than the window, whose own
/// element is the parent.
class UiaConsoleTest : public UiaLineTest {
 protected:
  UiaConsoleTest() {
    const WNDCLASSEXW windowClass{.cbSize = sizeof(WNDCLASSEXW),
                                  .style = 0,
                                  .lpfnWndProc = DefWindowProcW,
                                  .cbClsExtra = 0,
                                  .cbWndExtra = 0,
                                  .hInstance = GetModuleHandleW(nullptr),
                                  .hIcon = nullptr,
                                  .hCursor = nullptr,
                                  .hbrBackground = nullptr,
                                  .lpszMenuName = nullptr,
                                  .lpszClassName = L"ConsoleWindowClass",
                                  .hIconSm = nullptr};
    RegisterClassExW(&windowClass);
    window_ = makeWindow(nullptr, L"ConsoleWindowClass");
    plan().elements.resize(3);
    for (auto& element : plan().elements) element.process = GetCurrentProcessId() + 4;
    plan().elements[1].window = window_.get();
    plan().columns = 20;
  }

  void SetUp() override {
    ASSERT_NE(window_.get(), nullptr);
    showText(u"C:\\Users>type notes\r\n\r\nan unbelievably long line is wrapped\r\n> ");
  }
};

TEST_F(UiaConsoleTest, FindsWordsInEveryColumn) {
  expectWordAtEveryPixel(0, 9, u"type");
  expectWordAtEveryPixel(0, 14, u"notes");
  expectWordAtEveryPixel(2, 0, u"an");
  expectWordAtEveryPixel(2, 3, u"unbelievably");
  expectWordAtEveryPixel(3, 6, u"is");
  EXPECT_EQ(outcome(grid::at(1, 0)), Outcome::kNone);
  EXPECT_EQ(outcome(grid::at(4, 0)), Outcome::kNone);
}

TEST_F(UiaConsoleTest, JoinsWordsThatGoOnInTheNextRow) {
  showText(u"an unbelievably long-lasting peace, associ-\r\nated");
  for (const ScreenPoint& point : {grid::at(0, 19), grid::at(1, 0), grid::at(1, 7)}) {
    const auto answer = ask(point);
    ASSERT_EQ(answer.outcome, Outcome::kWord);
    EXPECT_EQ(plainWord(answer.word.readings), u"long-lasting");
    EXPECT_LE(answer.word.box.left, point.x);
    EXPECT_GT(answer.word.box.right, point.x);
  }
  showText(u"associ-\r\nated");
  EXPECT_EQ(wordAt(grid::at(0, 2)), u"associated");
  EXPECT_EQ(wordAt(grid::at(1, 2)), u"associated");
}

TEST_F(UiaConsoleTest, MovesNoRangeFarOrBeyondTheText) {
  for (const int row : {0, 2, 3, 4}) {
    for (int column = 0; column < 20; ++column) outcome(grid::at(row, column));
  }
  EXPECT_LE(log().farthest, 20);
  EXPECT_LE(log().mostLines, 1);
  EXPECT_FALSE(log().stopped);
}

TEST_F(UiaConsoleTest, IsNeverAskedBeforeWindows11Version22H2) {
  for (const std::uint32_t build : {0U, 19045U, 22000U, 22620U}) {
    plan().build = build;
    EXPECT_EQ(outcome(grid::at(0, 9)), Outcome::kNone) << build;
  }
  EXPECT_TRUE(log().calls.empty());
  plan().build = 22621;
  EXPECT_EQ(wordAt(grid::at(0, 9)), u"type");
}

TEST_F(UiaConsoleTest, OtherWindowsAreAskedOnEveryBuild) {
  plan().build = 19045;
  window_ = makeWindow();
  plan().elements[1].window = window_.get();
  EXPECT_EQ(wordAt(grid::at(0, 9)), u"type");
}

TEST_F(UiaConsoleTest, IsNotReadInsideAPasswordField) {
  for (const std::size_t password : {0U, 1U}) {
    plan().elements[password].password = true;
    EXPECT_EQ(outcome(grid::at(0, 9)), Outcome::kNone) << password;
    plan().elements[password].password = false;
  }
  EXPECT_TRUE(nothingRead());
}

TEST_F(UiaConsoleTest, IsNotReadIfTheTextBelongsToNoElementOfTheWindow) {
  plan().elements[1].window = nullptr;
  EXPECT_EQ(outcome(grid::at(0, 9)), Outcome::kNone);
  plan().elements[2].window = GetDesktopWindow();
  plan().elements[2].process = GetCurrentProcessId();
  EXPECT_EQ(outcome(grid::at(0, 9)), Outcome::kNone);
  EXPECT_TRUE(nothingRead());
}

TEST_F(UiaConsoleTest, OfTwoTextsTheNearerOneIsRead) {
  plan().elements[1].text = true;
  EXPECT_EQ(wordAt(grid::at(0, 9)), u"type");
  EXPECT_EQ(uia_.times("GetCachedPatternAs"), 1U);
}

TEST(WindowsBuild, IsThatOfTheSystem) {
  std::array<wchar_t, 20> build{};
  DWORD size = sizeof build;
  ASSERT_EQ(RegGetValueW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion",
                         L"CurrentBuildNumber", RRF_RT_REG_SZ, nullptr, build.data(), &size),
            ERROR_SUCCESS);
  EXPECT_EQ(std::to_wstring(nhw32::windowsBuild()), build.data());
}

}  // namespace
}  // namespace support
