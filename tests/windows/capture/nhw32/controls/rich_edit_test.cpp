#include <gtest/gtest.h>
#include <richedit.h>

#include <atomic>

#include "tests/support/data/plain_readings.h"
#include "tests/support/process/find.h"
#include "tests/support/window/hooked_text_window.h"
#include "tests/support/window/mixed_page.h"
#include "tests/support/window/text_geometry.h"

namespace support {
namespace {

using nhw32::Outcome;

HookedTextWindow::Design richDesign(DWORD style = ES_MULTILINE | ES_AUTOVSCROLL) {
  return {.className = L"RichEdit20W", .style = style};
}

/// Rich edit controls as the service asks them; one position a line end.
class Nhw32RichEdit : public ::testing::Test {
 protected:
  std::u16string wordAt(const nhw32::Question& question) {
    const nhw32::Answer answer = answerTo(question);
    EXPECT_NE(answer.outcome, Outcome::kOutOfTime);
    return plainWord(answer.word.readings);
  }

  std::u16string wordAtPoint(const HookedTextWindow& target, POINT point) {
    return wordAt(questionAt(target.control(), point));
  }

  /// A control of `design` returns a word, and none any more once `armed` has its hook act in the
  /// middle of the question.
  void expectNoWordOnceArmed(const HookedTextWindow::Design& design, bool& armed) {
    const HookedTextWindow target(design, u"words of the past");
    const nhw32::Question question = questionAbout(target.control(), 14);
    EXPECT_EQ(wordAt(question), u"past");
    armed = true;
    EXPECT_EQ(wordAt(question), u"");
    EXPECT_FALSE(armed);
  }
};

TEST_F(Nhw32RichEdit, TellsTheWordUnderThePoint) {
  const MixedPage page = makeMixedPage({.length = 3000, .lineEnd = u"\r"});
  const HookedTextWindow target(richDesign(), page.text);
  for (const int scrolled : {0, 25}) {
    SendMessageW(target.control(), EM_LINESCROLL, 0, scrolled);
    const auto places = visibleTextPoints(target.control(), 100);
    EXPECT_EQ(places.size(), 100U);
    for (const auto& [position, point] : places) {
      ASSERT_EQ(wordAtPoint(target, point), page.words[position]) << "at character " << position;
    }
  }
}

TEST_F(Nhw32RichEdit, JoinsADividedWordAcrossADeepIndentation) {
  HookedTextWindow::Design wide = richDesign(ES_MULTILINE | ES_AUTOHSCROLL);
  wide.size.cx = 900;
  const HookedTextWindow target(wide, u"associ-\r" + std::u16string(127, u' ') + u"ated");
  EXPECT_EQ(wordAt(questionAbout(target.control(), 0)), u"associated");
  EXPECT_EQ(wordAt(questionAbout(target.control(), 137)), u"associated");
}

TEST_F(Nhw32RichEdit, ASelectionStaysAndDoesNotMatter) {
  const HookedTextWindow target(richDesign(), u"some selected words");
  SendMessageW(target.control(), EM_SETSEL, 5, 13);
  EXPECT_EQ(wordAt(questionAbout(target.control(), 7)), u"selected");
  EXPECT_EQ(SendMessageW(target.control(), EM_GETSEL, 0, 0), MAKELONG(5, 13));
}

TEST_F(Nhw32RichEdit, NothingBeyondALinesEndAndBelowTheText) {
  const HookedTextWindow target(richDesign(), u"short\rlines");
  const RECT client = clientRectOf(target.control());
  const POINT first = *characterCorner(target.control(), 2);
  const POINT last = *characterCorner(target.control(), 8);
  EXPECT_EQ(wordAtPoint(target, {first.x + 1, first.y + 1}), u"short");
  EXPECT_EQ(wordAtPoint(target, {first.x + 100, first.y + 1}), u"");
  EXPECT_EQ(wordAtPoint(target, {last.x + 1, last.y + 1}), u"lines");
  EXPECT_EQ(wordAtPoint(target, {last.x + 100, last.y + 1}), u"");
  EXPECT_EQ(wordAtPoint(target, {last.x + 1, last.y + 40}), u"");
  EXPECT_EQ(wordAtPoint(target, {client.right - 1, client.bottom - 1}), u"");
}

TEST_F(Nhw32RichEdit, NothingInAnEmptyOne) {
  const HookedTextWindow target(richDesign(), u"");
  EXPECT_EQ(wordAtPoint(target, centreOf(clientRectOf(target.control()))), u"");
}

TEST_F(Nhw32RichEdit, TheLastCharacterOfTheTextBelongsToItsWord) {
  const HookedTextWindow target(richDesign(), u"only words");
  const POINT corner = *characterCorner(target.control(), 9);
  EXPECT_EQ(wordAtPoint(target, {corner.x + 2, corner.y + 5}), u"words");
}

TEST_F(Nhw32RichEdit, LettersOfManySizes) {
  const HookedTextWindow target(richDesign(), u"small LARGE small\rnext");
  CHARFORMATW format{};
  format.cbSize = sizeof format;
  format.dwMask = CFM_SIZE;
  format.yHeight = 600;
  SendMessageW(target.control(), EM_SETSEL, 6, 11);
  SendMessageW(target.control(), EM_SETCHARFORMAT, SCF_SELECTION,
               reinterpret_cast<LPARAM>(&format));
  EXPECT_EQ(wordAt(questionAbout(target.control(), 2)), u"small");
  EXPECT_EQ(wordAt(questionAbout(target.control(), 8)), u"LARGE");
  EXPECT_EQ(wordAt(questionAbout(target.control(), 14)), u"small");
  EXPECT_EQ(wordAt(questionAbout(target.control(), 19)), u"next");
}

/// A rich edit control whose lines are of several sizes, none of which holds the caret.
class SizedLines {
 public:
  struct Line {
    std::u16string text;
    int points;
  };

  explicit SizedLines(const std::vector<Line>& lines) : target_(richDesign(), joined(lines)) {
    LONG first = 0;
    for (const auto& [text, points] : lines) {
      setSize(first, first + static_cast<LONG>(text.size()) + 1, points);
      first += static_cast<LONG>(text.size()) + 1;
    }
    SendMessageW(control(), EM_SETSEL, 0, 0);
  }

  [[nodiscard]] HWND control() const { return target_.control(); }

  void putCaretAt(LONG position) const {
    SendMessageW(control(), EM_SETSEL, static_cast<WPARAM>(position), position);
    SendMessageW(control(), WM_SETFOCUS, 0, 0);
  }

  void setSize(LONG first, LONG end, int points) const {
    CHARFORMATW format{};
    format.cbSize = sizeof format;
    format.dwMask = CFM_SIZE;
    format.yHeight = points * 20;  // in twips
    SendMessageW(control(), EM_SETSEL, static_cast<WPARAM>(first), end);
    SendMessageW(control(), EM_SETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
  }

 private:
  static std::u16string joined(const std::vector<Line>& lines) {
    std::u16string text;
    for (const Line& line : lines) text += (text.empty() ? u"" : u"\r") + line.text;
    return text;
  }

  HookedTextWindow target_;
};

int lineHeightOf(int points) {
  const SizedLines lines({{u"one", points}, {u"two", points}});
  return lineDistance(lines.control(), 0, 4);
}

TEST_F(Nhw32RichEdit, ALastLineIsReadDownToItsLowerEdgeAndLittleBelow) {
  for (const int points : {8, 12, 18, 36, 48}) {
    const int height = lineHeightOf(points);
    for (const auto& above : std::vector<std::vector<SizedLines::Line>>{
             {}, {{u"first", 8}}, {{u"first", points}}, {{u"first", 60}}}) {
      std::vector<SizedLines::Line> lines = above;
      lines.push_back({u"The catalyst", points});
      const SizedLines target(lines);
      const int rows = wordRows(target.control(), (above.empty() ? 0 : 6) + 6);
      EXPECT_GE(rows, height) << points;
      EXPECT_LT(rows, std::max(height, 16) * 3 / 2) << points;
    }
  }
}

TEST_F(Nhw32RichEdit, TheCaretTellsOfItsOwnLineOnly) {
  const int height = lineHeightOf(36);
  const SizedLines target({{u"first", 8}, {u"The catalyst", 36}});
  target.putCaretAt(9);
  EXPECT_EQ(wordRows(target.control(), 12), height);
  target.putCaretAt(2);
  EXPECT_GE(wordRows(target.control(), 12), height);
}

TEST_F(Nhw32RichEdit, TheCaretTellsOfSmallLettersBesideLargeOnes) {
  const SizedLines target({{u"The LARGE catalyst", 8}});
  target.setSize(4, 9, 36);
  target.putCaretAt(6);
  EXPECT_EQ(wordRows(target.control(), 13), lineHeightOf(36));
}

TEST_F(Nhw32RichEdit, APasswordIsNotEvenRead) {
  std::atomic<int> reads = 0;
  HookedTextWindow::Design design = richDesign(ES_PASSWORD);
  design.hook = [&](HWND, UINT message, WPARAM, LPARAM) {
    reads += message == EM_GETTEXTRANGE || message == WM_GETTEXT ? 1 : 0;
    return std::optional<LRESULT>();
  };
  const HookedTextWindow target(design, u"secret");
  const POINT corner = *characterCorner(target.control(), 2);
  EXPECT_EQ(wordAtPoint(target, {corner.x + 2, corner.y + 5}), u"");
  EXPECT_EQ(reads, 0);
}

TEST_F(Nhw32RichEdit, NothingWhereItShrinksOrGoesInMidQuestion) {
  for (const bool goes : {false, true}) {
    bool armed = false;
    HookedTextWindow::Design design = richDesign();
    design.hook = [&](HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
      if (message != EM_GETTEXTRANGE || !std::exchange(armed, false))
        return std::optional<LRESULT>();
      const LRESULT length = SendMessageW(control, message, wParam, lParam);
      if (goes) {
        DestroyWindow(GetParent(control));
      } else {
        SetWindowTextW(control, L"");
      }
      return std::optional(length);
    };
    expectNoWordOnceArmed(design, armed);
  }
}

TEST_F(Nhw32RichEdit, NothingWhereItsWindowShrinksInMidQuestion) {
  bool armed = false;
  HookedTextWindow::Design design = richDesign();
  design.hook = [&](HWND control, UINT message, WPARAM, LPARAM) {
    if (message == EM_GETTEXTRANGE && std::exchange(armed, false)) {
      SetWindowPos(control, nullptr, 0, 0, 400, 3, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    return std::optional<LRESULT>();
  };
  expectNoWordOnceArmed(design, armed);
}

TEST_F(Nhw32RichEdit, ReadsControlsWhoseTextIsBytes) {
  const HookedTextWindow target(
      {.className = L"RichEdit20A", .style = ES_MULTILINE | ES_AUTOVSCROLL}, u"字典 mixed words");
  ASSERT_FALSE(IsWindowUnicode(target.control()));
  EXPECT_EQ(wordAt(questionAbout(target.control(), 1)), u"字典");
  EXPECT_EQ(wordAt(questionAbout(target.control(), 5)), u"mixed");
  EXPECT_EQ(wordAt(questionAbout(target.control(), 11)), u"words");
}

/// Puts a procedure for the other kind of text before a control's own, as programs do that subclass
/// their controls. For one control at a time.
class OtherTextProcedure {
 public:
  static void putBefore(HWND control) {
    const bool wide = IsWindowUnicode(control) != FALSE;
    const auto set = wide ? SetWindowLongPtrA : SetWindowLongPtrW;
    before() = reinterpret_cast<WNDPROC>(
        set(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(wide ? passOnBytes : passOnWide)));
  }

 private:
  static LRESULT CALLBACK passOnBytes(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcA(before(), window, message, wParam, lParam);
  }
  static LRESULT CALLBACK passOnWide(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcW(before(), window, message, wParam, lParam);
  }
  static WNDPROC& before() {
    static WNDPROC procedure;
    return procedure;
  }
};

TEST_F(Nhw32RichEdit, ASubclassOfTheOtherKindOfTextDoesNotMatter) {
  for (const wchar_t* name : {L"RichEdit20W", L"RichEdit20A"}) {
    const HookedTextWindow target({.className = name, .style = ES_MULTILINE | ES_AUTOVSCROLL},
                                  u"字典 mixed words");
    const BOOL wide = IsWindowUnicode(target.control());
    OtherTextProcedure::putBefore(target.control());
    ASSERT_NE(IsWindowUnicode(target.control()), wide);
    EXPECT_EQ(wordAt(questionAbout(target.control(), 1)), u"字典");
    EXPECT_EQ(wordAt(questionAbout(target.control(), 5)), u"mixed");
  }
}

}  // namespace
}  // namespace support
