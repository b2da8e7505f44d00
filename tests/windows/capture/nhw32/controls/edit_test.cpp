#include <gtest/gtest.h>

#include <atomic>

#include "capture/nhw32/controls/target_window.h"
#include "forms/graphics.h"
#include "tests/support/data/plain_readings.h"
#include "tests/support/process/find.h"
#include "tests/support/window/hooked_text_window.h"
#include "tests/support/window/mixed_page.h"
#include "tests/support/window/text_geometry.h"

namespace support {
namespace {

using nhw32::Outcome;

/// Edit controls as the service asks them.
class Nhw32Edit : public ::testing::Test {
 protected:
  std::u16string wordAbout(const HookedTextWindow& target, std::size_t position) {
    return wordAt(target, questionAbout(target.control(), position));
  }

  std::u16string wordAtPoint(const HookedTextWindow& target, POINT point) {
    return wordAt(target, questionAt(target.control(), point));
  }

  /// otherwise "".
  std::u16string wordAt(const HookedTextWindow& /*target*/, const nhw32::Question& question) {
    const nhw32::Answer answer = answerTo(question);
    EXPECT_NE(answer.outcome, Outcome::kOutOfTime);
    return plainWord(answer.word.readings);
  }

  /// Compares the words at `count` random places in sight with those of the page.
  void compare(const HookedTextWindow& target, const MixedPage& page, std::size_t count) {
    const auto places = visibleTextPoints(target.control(), count);
    EXPECT_EQ(places.size(), count);
    for (const auto& [position, point] : places) {
      ASSERT_EQ(wordAtPoint(target, point), page.words[position]) << "at character " << position;
    }
  }
};

TEST_F(Nhw32Edit, TellsTheWordUnderThePoint) {
  const MixedPage page = makeMixedPage({});
  const HookedTextWindow target({}, page.text);
  compare(target, page, 200);
}

TEST_F(Nhw32Edit, AlsoWhereLinesAreNotWrappedAndScrolledBothWays) {
  const MixedPage page = makeMixedPage({.length = 6000, .lineLength = 200});
  const HookedTextWindow target({.style = ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL},
                                page.text);
  SendMessageW(target.control(), EM_LINESCROLL, 40, 7);
  compare(target, page, 200);
}

TEST_F(Nhw32Edit, AlsoInWrappedLinesScrolledFarDown) {
  const MixedPage page = makeMixedPage({.length = 8000, .lineLength = 0});
  const HookedTextWindow target({}, page.text);
  SendMessageW(target.control(), EM_LINESCROLL, 0, 60);
  compare(target, page, 200);
}

TEST_F(Nhw32Edit, AlsoInASingleLineThatIsScrolled) {
  const MixedPage page = makeMixedPage({.length = 300, .lineLength = 0});
  const HookedTextWindow target({.style = ES_AUTOHSCROLL, .size = {420, 22}}, page.text);
  SendMessageW(target.control(), EM_SETSEL, 200, 200);
  SendMessageW(target.control(), EM_SCROLLCARET, 0, 0);
  compare(target, page, 50);
}

TEST_F(Nhw32Edit, AlsoAfter64KCharacters) {
  const MixedPage page = makeMixedPage({.length = 400'000});
  const HookedTextWindow target({}, page.text);
  for (const int line : {1'000, 1'100, 2'500, 5'500}) {
    SendMessageW(target.control(), EM_LINESCROLL, 0,
                 line - SendMessageW(target.control(), EM_GETFIRSTVISIBLELINE, 0, 0));
    compare(target, page, 50);
  }
}

TEST_F(Nhw32Edit, AlsoAfter64KLines) {
  const MixedPage page = makeMixedPage({.length = 400'000, .lineLength = 1});
  const HookedTextWindow target({}, page.text);
  const auto lines = SendMessageW(target.control(), EM_GETLINECOUNT, 0, 0);
  SCOPED_TRACE(lines);
  SendMessageW(target.control(), EM_LINESCROLL, 0, lines - 30);
  compare(target, page, 50);
}

TEST_F(Nhw32Edit, JoinsADividedWordAcrossADeepIndentation) {
  const HookedTextWindow target({}, u"associ-\r\n" + std::u16string(126, u' ') + u"ated");
  EXPECT_EQ(wordAbout(target, 0), u"associated");
}

TEST_F(Nhw32Edit, ASelectionStaysAndDoesNotMatter) {
  const HookedTextWindow target({}, u"some selected words");
  SendMessageW(target.control(), EM_SETSEL, 5, 13);
  EXPECT_EQ(wordAbout(target, 7), u"selected");
  EXPECT_EQ(wordAbout(target, 15), u"words");
  EXPECT_EQ(SendMessageW(target.control(), EM_GETSEL, 0, 0), MAKELONG(5, 13));
}

TEST_F(Nhw32Edit, TellsThePlaceOfTheWord) {
  const HookedTextWindow target({}, u"one well-known word\r\nnext");
  const nhw32::Answer answer = answerTo(questionAbout(target.control(), 8));
  ASSERT_EQ(plainWord(answer.word.readings), u"well-known");
  const POINT begin = *characterCorner(target.control(), 4);
  const POINT end = *characterCorner(target.control(), 14);
  const POINT below = *characterCorner(target.control(), 21);
  EXPECT_EQ(answer.word.box,
            (nhw32::ScreenBox{static_cast<int>(begin.x), static_cast<int>(begin.y),
                              static_cast<int>(end.x), static_cast<int>(below.y)}));
}

TEST_F(Nhw32Edit, NothingBeyondALinesEndBelowTheTextAndInTheMargins) {
  const HookedTextWindow target({}, u"short\r\nlines");
  const RECT client = clientRectOf(target.control());
  const POINT first = *characterCorner(target.control(), 2);
  const POINT last = *characterCorner(target.control(), 9);
  const LONG height = last.y - first.y;
  EXPECT_EQ(wordAtPoint(target, {first.x + 1, first.y + 1}), u"short");
  EXPECT_EQ(wordAtPoint(target, {first.x + 100, first.y + 1}), u"");
  EXPECT_EQ(wordAtPoint(target, {last.x + 1, last.y + 1}), u"lines");
  EXPECT_EQ(wordAtPoint(target, {last.x + 100, last.y + 1}), u"");
  EXPECT_EQ(wordAtPoint(target, {last.x + 1, last.y + height - 1}), u"lines");
  EXPECT_EQ(wordAtPoint(target, {last.x + 1, last.y + height}), u"");
  EXPECT_EQ(wordAtPoint(target, {client.right - 1, client.bottom - 1}), u"");
  EXPECT_EQ(wordAtPoint(target, {client.left - 5, first.y + 1}), u"");
}

TEST_F(Nhw32Edit, NothingFarBelowALoneLine) {
  const HookedTextWindow target({}, u"lonely");
  const POINT corner = *characterCorner(target.control(), 2);
  EXPECT_EQ(wordAtPoint(target, {corner.x + 1, corner.y + 5}), u"lonely");
  EXPECT_EQ(wordAtPoint(target, {corner.x + 1, corner.y + 25}), u"");
}

/// Fonts of the sizes that programs use at 96, 144 and 192 dpi, and a large one.
class Nhw32EditFont : public Nhw32Edit,
                      public ::testing::WithParamInterface<std::tuple<const char16_t*, int>> {
 protected:
  [[nodiscard]] HookedTextWindow::Design design(DWORD style) const {
    return {.style = style, .font = font_.get()};
  }

  [[nodiscard]] int lineHeight() const {
    const HookedTextWindow target(design(ES_MULTILINE), u"one\r\ntwo");
    return lineDistance(target.control(), 0, 5);
  }

 private:
  const win32::OwnedFont font_ =
      forms::makeFont({.face = std::get<0>(GetParam()), .points = 9}, std::get<1>(GetParam()));
};

INSTANTIATE_TEST_SUITE_P(Faces, Nhw32EditFont,
                         ::testing::Combine(::testing::Values(u"Tahoma", u"Times New Roman",
                                                              u"Courier New"),
                                            ::testing::Values(96, 144, 192, 384)));

TEST_P(Nhw32EditFont, ASingleLineIsReadFromItsUpperToItsLowerEdge) {
  const HookedTextWindow target(design(ES_AUTOHSCROLL), u"The catalyst");
  EXPECT_EQ(wordRows(target.control(), 6), lineHeight());
}

TEST_P(Nhw32EditFont, ALoneLineIsReadDownToItsLowerEdgeAndLittleBelow) {
  const HookedTextWindow target(design(ES_MULTILINE), u"The catalyst");
  const int rows = wordRows(target.control(), 6);
  EXPECT_GE(rows, lineHeight());
  EXPECT_LT(rows, lineHeight() * 3 / 2);
}

TEST_P(Nhw32EditFont, WithTheCaretALoneLineTellsThemToItsLowerEdge) {
  const HookedTextWindow target(design(ES_MULTILINE), u"The catalyst");
  SendMessageW(target.control(), WM_SETFOCUS, 0, 0);
  EXPECT_EQ(wordRows(target.control(), 6), lineHeight());
}

TEST_P(Nhw32EditFont, ALastLineTellsThemToItsLowerEdge) {
  const HookedTextWindow target(design(ES_MULTILINE), u"first\r\nThe catalyst");
  EXPECT_EQ(wordRows(target.control(), 13), lineHeight());
}

TEST_F(Nhw32Edit, AFormattingRectangleThatCannotBeIsNotTrusted) {
  for (const RECT& rect : {RECT{0, 0, 0, 0}, {0, 20, 100, 10}, {0, -90, 100, -70}}) {
    const HookedTextWindow target({.style = ES_AUTOHSCROLL,
                                   .hook =
                                       [&rect](HWND, UINT message, WPARAM, LPARAM lParam) {
                                         if (message != EM_GETRECT) return std::optional<LRESULT>();
                                         *reinterpret_cast<RECT*>(lParam) = rect;
                                         return std::optional<LRESULT>(0);
                                       }},
                                  u"The catalyst");
    const int rows = wordRows(target.control(), 6);
    EXPECT_GE(rows, 16);
    EXPECT_LE(rows, 24);
  }
}

TEST_F(Nhw32Edit, TheBoxOfAWordEndsWithTheClientArea) {
  const HookedTextWindow target({.size = {420, 9}}, u"The catalyst");
  const RECT client = clientRectOf(target.control());
  const auto answer = answerTo(questionAt(target.control(), {client.left + 8, client.top + 5}));
  ASSERT_EQ(answer.outcome, Outcome::kWord);
  EXPECT_EQ(answer.word.box.bottom, client.bottom);
}

TEST_F(Nhw32Edit, TheLastCharacterOfTheTextBelongsToItsWord) {
  const HookedTextWindow target({}, u"only words");
  const POINT corner = *characterCorner(target.control(), 9);
  EXPECT_EQ(wordAtPoint(target, {corner.x + 2, corner.y + 5}), u"words");
  EXPECT_EQ(wordAtPoint(target, {corner.x + 40, corner.y + 5}), u"");
}

TEST_F(Nhw32Edit, NothingInAnEmptyOne) {
  const HookedTextWindow target({}, u"");
  EXPECT_EQ(wordAtPoint(target, centreOf(clientRectOf(target.control()))), u"");
}

TEST_F(Nhw32Edit, APasswordIsNotEvenRead) {
  for (const bool byStyle : {true, false}) {
    std::atomic<int> reads = 0;
    const HookedTextWindow target({.style = byStyle ? DWORD{ES_PASSWORD} : DWORD{ES_AUTOHSCROLL},
                                   .size = {420, 22},
                                   .hook =
                                       [&](HWND, UINT message, WPARAM, LPARAM) {
                                         reads += message == WM_GETTEXT ? 1 : 0;
                                         return std::optional<LRESULT>();
                                       }},
                                  u"secret");
    if (!byStyle) {
      EXPECT_EQ(wordAbout(target, 2), u"secret");
      EXPECT_EQ(reads.exchange(0), 1);
      SendMessageW(target.control(), EM_SETPASSWORDCHAR, L'*', 0);
    }
    const POINT corner = *characterCorner(target.control(), 2);
    EXPECT_EQ(wordAtPoint(target, {corner.x + 2, corner.y + 5}), u"");
    EXPECT_EQ(reads, 0);
  }
}

TEST_F(Nhw32Edit, NothingWhereTheWindowIsHiddenOrGone) {
  nhw32::Question question;
  {
    const HookedTextWindow target({}, u"hidden");
    question = questionAbout(target.control(), 2);
    EXPECT_EQ(wordAt(target, question), u"hidden");
    ShowWindow(target.window(), SW_HIDE);
    EXPECT_EQ(wordAt(target, question), u"");
  }
  EXPECT_EQ(answerTo(question).outcome, Outcome::kNone);
}

/// What befalls a control right after its text was read.
void shrink(HWND control) { SetWindowTextW(control, L"x"); }
void hide(HWND control) { ShowWindow(control, SW_HIDE); }
void destroy(HWND control) { DestroyWindow(GetParent(control)); }

TEST_F(Nhw32Edit, NothingWhereItShrinksHidesOrGoesInMidQuestion) {
  for (auto* const befall : {shrink, hide, destroy}) {
    bool armed = false;
    const HookedTextWindow target(
        {.hook =
             [&](HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
               if (message != WM_GETTEXT || !std::exchange(armed, false))
                 return std::optional<LRESULT>();
               const LRESULT length = DefWindowProcW(control, WM_NULL, 0, 0);
               const std::u16string text = u"words of the past";
               std::copy_n(text.c_str(), std::min<std::size_t>(text.size() + 1, wParam),
                           reinterpret_cast<char16_t*>(lParam));
               befall(control);
               return std::optional<LRESULT>(length + static_cast<LRESULT>(text.size()));
             }},
        u"words of the past");
    const nhw32::Question question = questionAbout(target.control(), 14);
    EXPECT_EQ(wordAt(target, question), u"past");
    armed = true;
    EXPECT_EQ(wordAt(target, question), u"");
  }
}

/// What a control's window does right after the control's text was read.
void becomesLow(HWND control) {
  SetWindowPos(control, nullptr, 0, 0, 400, 3, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}
void movesDown(HWND control) {
  SetWindowPos(control, nullptr, 0, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

TEST_F(Nhw32Edit, NothingWhereItsWindowShrinksOrMovesInMidQuestion) {
  for (auto* const befall : {becomesLow, movesDown}) {
    bool armed = false;
    const HookedTextWindow target(
        {.hook =
             [&](HWND control, UINT message, WPARAM, LPARAM) {
               if (message == EM_POSFROMCHAR && std::exchange(armed, false)) {
                 befall(control);
               }
               return std::optional<LRESULT>();
             }},
        u"words of the past");
    const nhw32::Question question = questionAbout(target.control(), 14);
    EXPECT_EQ(wordAt(target, question), u"past");
    armed = true;
    EXPECT_EQ(wordAt(target, question), u"");
    EXPECT_FALSE(armed);
  }
}

TEST_F(Nhw32Edit, RefusesLinesOver65535Characters) {
  constexpr std::size_t kLongest = 0xFFFF;
  std::u16string line = u"plain ";
  while (line.size() <= kLongest) line += u"words of data ";
  for (const std::size_t length : {kLongest, kLongest + 1}) {
    const HookedTextWindow target({.style = ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL},
                                  line.substr(0, length) + u"\r\nbelow it");
    EXPECT_EQ(wordAbout(target, 2), length == kLongest ? u"plain" : u"");
    EXPECT_EQ(wordAbout(target, length + 4), u"below");
  }
}

/// Registers a class under a name of its own that behaves as `base` does.
void derive(const wchar_t* base, const wchar_t* name) {
  WNDCLASSW windowClass{};
  ASSERT_TRUE(GetClassInfoW(nullptr, base, &windowClass));
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.lpszClassName = name;
  ASSERT_NE(RegisterClassW(&windowClass), 0);
}

TEST_F(Nhw32Edit, ReadsTextBoxesOfVisualBasic) {
  for (const wchar_t* name : {L"ThunderRT6TextBox", L"ThunderRT5TextBox", L"ThunderTextBox"}) {
    derive(L"EDIT", name);
    const HookedTextWindow target({.className = name}, u"older words");
    EXPECT_EQ(wordAbout(target, 8), u"words");
  }
}

TEST_F(Nhw32Edit, ReadsEditControlsOfAnotherClassNameIfWindowsReturnsTheirRealClass) {
  derive(L"EDIT", L"TNoteEdit");
  const HookedTextWindow target({.className = L"TNoteEdit"}, u"older words");
  // Windows returns the real class of its own controls; Wine returns the name again, and the
  // control might as well be another.
  wchar_t realClass[64] = L"";
  RealGetWindowClassW(target.control(), realClass, 64);
  const bool known = std::wstring(realClass) == L"Edit";
  EXPECT_EQ(wordAbout(target, 8), known ? u"words" : u"");
}

TEST_F(Nhw32Edit, ARichEditControlThatSoundsLikeOneIsNotGivenThePoint) {
  LoadLibraryW(L"riched20.dll");
  derive(L"RichEdit20W", L"TLogEdit");
  std::atomic<int> points = 0;
  const HookedTextWindow target({.className = L"TLogEdit",
                                 .hook =
                                     [&](HWND, UINT message, WPARAM, LPARAM) {
                                       // The control would read at the address that the point
                                       // makes.
                                       if (message != EM_CHARFROMPOS)
                                         return std::optional<LRESULT>();
                                       ++points;
                                       return std::optional<LRESULT>(0);
                                     }},
                                u"words of a log");
  EXPECT_EQ(wordAtPoint(target, centreOf(clientRectOf(target.control()))), u"");
  EXPECT_EQ(points, 0);
}

TEST_F(Nhw32Edit, AWindowThatOnlySoundsLikeOneIsNotAskedForItsText) {
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = DefWindowProcW;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.lpszClassName = L"TMyEditor";
  RegisterClassW(&windowClass);
  std::atomic<int> reads = 0;
  const HookedTextWindow target({.className = L"TMyEditor",
                                 .style = 0,
                                 .hook =
                                     [&](HWND, UINT message, WPARAM, LPARAM) {
                                       reads += message == WM_GETTEXT ? 1 : 0;
                                       return std::optional<LRESULT>();
                                     }},
                                u"caption");
  EXPECT_EQ(wordAtPoint(target, centreOf(clientRectOf(target.control()))), u"");
  EXPECT_EQ(reads, 0);
}

}  // namespace
}  // namespace support
