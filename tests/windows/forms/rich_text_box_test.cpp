#include "forms/rich_text_box.h"

#include <algorithm>

#include "forms/clipboard.h"
#include "tests/support/process/clipboard.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/find.h"
#include "tests/support/process/screen.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

class PaneForm : public FormA {
 public:
  forms::RichTextBox pane{*this, {150, 1000, 3900, 1200}};
};

class RichTextBoxTest : public WindowTest {
 protected:
  static forms::RichTextBox& pane() { return forms::form<PaneForm>().pane; }
  static std::vector<COLORREF> colours() { return richTextColours(pane().handle()); }
};

TEST_F(RichTextBoxTest, GivesBackTheTextThatWasSet) {
  opened<PaneForm>();
  pane().setText(u" bit\r\n 位；\r\n 比特");
  EXPECT_EQ(pane().text(), u" bit\r\n 位；\r\n 比特");
  pane().setText(u"");
  EXPECT_EQ(pane().text(), u"");
}

TEST_F(RichTextBoxTest, ColoursAreRightToTheCharacter) {
  opened<PaneForm>();
  const std::u16string text = u" bit\r\n 位；\r\n 比特";
  pane().setText(text);
  pane().select(0, 6);
  pane().setSelColor(kRed);
  pane().select(6, text.size() - 6);
  pane().setSelColor(kBlue);
  // The control counts a line end once: " bit" and its end are 5, "位；" with blank and end 4.
  std::vector<COLORREF> expected(5, kRed);
  expected.insert(expected.end(), 7, kBlue);
  EXPECT_EQ(colours(), expected);
}

TEST_F(RichTextBoxTest, RunsAreColouredEachByItself) {
  opened<PaneForm>();
  pane().setHangingIndent(180);
  pane().setText(u"before");
  pane().setRuns({{u" bit\r\n", kRed}, {u" 位；\r\n 比特", kBlue}}, 1);
  EXPECT_EQ(pane().text(), u" bit\r\n 位；\r\n 比特");
  std::vector<COLORREF> expected(5, kRed);
  expected.insert(expected.end(), 7, kBlue);
  EXPECT_EQ(colours(), expected);
  pane().setRuns({{u"one", kBlue}, {u"two", kRed}});
  EXPECT_EQ(pane().text(), u"onetwo");
  EXPECT_EQ(colours(), (std::vector<COLORREF>{kBlue, kBlue, kBlue, kRed, kRed, kRed}));
}

TEST_F(RichTextBoxTest, AfterRunsTheCaretIsWhereItWasAskedFor) {
  opened<PaneForm>();
  for (const std::size_t caret : {1U, 0U, 4U}) {
    pane().setRuns({{u"red", kRed}, {u"blue", kBlue}}, caret);
    EXPECT_EQ(pane().selStart(), caret);
    EXPECT_EQ(pane().selLength(), 0U);
  }
  pane().setRuns({{u"red", kRed}});
  EXPECT_EQ(pane().selStart(), 0U);
}

TEST_F(RichTextBoxTest, PositionsAreThoseOfTheTextAsItWasSet) {
  opened<PaneForm>();
  const std::u16string text = u"one\r\ntwo\r\nthree";
  pane().setText(text);
  for (std::size_t start = 0; start <= text.size(); ++start) {
    if (start > 0 && text[start - 1] == u'\r') continue;
    pane().select(start, 0);
    EXPECT_EQ(pane().selStart(), start);
    EXPECT_EQ(pane().selLength(), 0U);
  }
}

TEST_F(RichTextBoxTest, ASelectionAcrossLinesKeepsTheirEnds) {
  opened<PaneForm>();
  pane().setText(u"one\r\ntwo\r\nthree");
  pane().select(2, 9);
  EXPECT_EQ(pane().selStart(), 2U);
  EXPECT_EQ(pane().selLength(), 9U);
  EXPECT_EQ(pane().selText(), u"e\r\ntwo\r\nt");
}

TEST_F(RichTextBoxTest, ASelectionBeyondTheEndStopsThere) {
  opened<PaneForm>();
  pane().setText(u"word");
  pane().select(2, 100);
  EXPECT_EQ(pane().selText(), u"rd");
  pane().select(100, 5);
  EXPECT_EQ(pane().selText(), u"");
}

TEST_F(RichTextBoxTest, ANewTextHasNoSelectionAndTheDefaultColour) {
  opened<PaneForm>();
  pane().setText(u"first");
  pane().select(0, 5);
  pane().setSelColor(kRed);
  pane().setText(u"second");
  EXPECT_EQ(pane().selStart(), 0U);
  EXPECT_EQ(pane().selLength(), 0U);
  for (const COLORREF colour : colours()) EXPECT_NE(colour, kRed);
}

TEST_F(RichTextBoxTest, AHangingIndentLeavesTextAndSelectionAlone) {
  opened<PaneForm>();
  pane().setHangingIndent(180);
  pane().setText(u"a\r\nb");
  EXPECT_EQ(pane().text(), u"a\r\nb");
  EXPECT_EQ(pane().selStart(), 0U);
  EXPECT_EQ(pane().selLength(), 0U);
  PARAFORMAT2 format{};
  format.cbSize = sizeof format;
  SendMessageW(pane().handle(), EM_GETPARAFORMAT, 0, reinterpret_cast<LPARAM>(&format));
  EXPECT_EQ(format.dxOffset, 180);
}

/// The greatest distance in pixels between two rows of pixels of a window that hold ink of
/// `colour`, from the first such row to the last; 0 where there is none.
int widestGap(HWND window, COLORREF colour) {
  const RECT rect = clientRectOf(window);
  const std::vector<COLORREF> pixels = screenPixels(rect);
  const auto width = static_cast<std::size_t>(rect.right - rect.left);
  int last = -1;
  int widest = 0;
  for (std::size_t row = 0; row < pixels.size() / width; ++row) {
    const auto* begin = &pixels[row * width];
    if (std::find(begin, begin + width, colour) == begin + width) continue;
    if (last >= 0) widest = std::max(widest, static_cast<int>(row) - last);
    last = static_cast<int>(row);
  }
  return widest;
}

// Wine's control breaks a line after its leading blank where the rest, Han characters without
// blanks, does not fit beside it: an empty line would stand before a long meaning. Windows' breaks
// between Han characters. The no-break space that the control is given reads well in both.
TEST_F(RichTextBoxTest, NoEmptyLineStandsBeforeALongMeaning) {
  opened<PaneForm>();
  pane().setHangingIndent(180);
  const std::u16string text =
      u" data\r\n 数据；\r\n 用于显示或设定系统的日期用于显示或设定系统的日期；\r\n 资料";
  pane().setText(text);
  pane().select(0, text.size());
  pane().setSelColor(kBlue);
  pane().select(0, 0);
  constexpr LONG kSecondLine = 6;
  const LONG lineHeight =
      richTextPosition(pane().handle(), kSecondLine).y - richTextPosition(pane().handle(), 0).y;
  ASSERT_GT(SendMessageW(pane().handle(), EM_GETLINECOUNT, 0, 0), 4) << "the meaning is not broken";
  EXPECT_TRUE(eventually([] { return widestGap(pane().handle(), kBlue) > 0; }));
  EXPECT_LT(widestGap(pane().handle(), kBlue), lineHeight) << "an empty line";
}

TEST_F(RichTextBoxTest, TheControlReturnsItsTextWithPlainBlanks) {
  opened<PaneForm>();
  const std::u16string text = u" bit\r\n 位 比；\r\n 比特";
  const std::wstring asHeld = L" bit\r 位 比；\r 比特";
  pane().setText(text);
  HWND control = pane().handle();
  EXPECT_EQ(textOf(control), std::wstring(text.begin(), text.end()));
  std::wstring given(100, L'\0');
  const auto expectGiven = [&](const char* how, LRESULT length) {
    EXPECT_EQ(given.substr(0, static_cast<std::size_t>(length)), asHeld) << how;
    given.assign(100, L'\0');
  };
  TEXTRANGEW range{{0, -1}, given.data()};
  expectGiven("EM_GETTEXTRANGE",
              SendMessageW(control, EM_GETTEXTRANGE, 0, reinterpret_cast<LPARAM>(&range)));
  GETTEXTEX whole{200, GT_DEFAULT, 1200, nullptr, nullptr};
  expectGiven("EM_GETTEXTEX", SendMessageW(control, EM_GETTEXTEX, reinterpret_cast<WPARAM>(&whole),
                                           reinterpret_cast<LPARAM>(given.data())));
  pane().select(0, text.size());
  expectGiven("EM_GETSELTEXT",
              SendMessageW(control, EM_GETSELTEXT, 0, reinterpret_cast<LPARAM>(given.data())));
  given[0] = 99;
  const LRESULT line = SendMessageW(control, EM_GETLINE, 1, reinterpret_cast<LPARAM>(given.data()));
  EXPECT_EQ(given.substr(0, static_cast<std::size_t>(line)), L" 位 比；\r");
}

TEST_F(RichTextBoxTest, TheKeysCopyWhatIsSelectedAsItWasSet) {
  opened<PaneForm>();
  pane().setText(u" bit\r\n 位");
  pane().setFocus();
  pane().select(0, 8);
  for (const WORD key : std::initializer_list<WORD>{'C', VK_INSERT}) {
    forms::setClipboardText(pane().form().handle(), u"before");
    input::key(key, {VK_CONTROL});
    EXPECT_TRUE(eventually([] { return clipboardText() == L" bit\r\n 位"; })) << key;
  }
  pane().select(0, 0);
  input::key('C', {VK_CONTROL});
  EXPECT_TRUE(always([] { return clipboardText() == L" bit\r\n 位"; }, 60));
}

TEST_F(RichTextBoxTest, IsReadOnly) {
  opened<PaneForm>();
  pane().setText(u"word");
  pane().setFocus();
  pane().select(0, 4);
  input::type(L"x");
  input::key(VK_DELETE);
  input::key(VK_BACK);
  input::key('X', {VK_CONTROL});
  passTime(60);
  EXPECT_EQ(pane().text(), u"word");
}

TEST_F(RichTextBoxTest, TabLeavesIt) {
  auto& form = opened<PaneForm>();
  pane().setFocus();
  input::key(VK_TAB);
  EXPECT_TRUE(eventually([&] { return GetFocus() == form.first.handle(); }));
  input::key(VK_TAB, {VK_SHIFT});
  EXPECT_TRUE(eventually([&] { return GetFocus() == pane().handle(); }));
}

TEST_F(RichTextBoxTest, CtrlASelectsAll) {
  opened<PaneForm>();
  pane().setText(u"one\r\ntwo");
  pane().setFocus();
  input::key('A', {VK_CONTROL});
  EXPECT_TRUE(eventually([] { return pane().selText() == u"one\r\ntwo"; }));
}

TEST_F(RichTextBoxTest, TheRightButtonAndTheMenuKeyRaiseTheirEvent) {
  opened<PaneForm>();
  int raised = 0;
  pane().onRightMouseUp = [&](forms::TwipPoint) { ++raised; };
  injected::rightClick(centreOf(pane()));
  ASSERT_TRUE(eventually([&] { return raised == 1; }));
  pane().setFocus();
  input::key(VK_F10, {VK_SHIFT});
  EXPECT_TRUE(eventually([&] { return raised == 2; }));
  input::key(VK_APPS);
  EXPECT_TRUE(eventually([&] { return raised == 3; }));
  EXPECT_TRUE(always([&] { return raised == 3; }, 40));
}

TEST_F(RichTextBoxTest, TheMenuKeyIsKnownByBothCoordinates) {
  opened<PaneForm>();
  int raised = 0;
  pane().onRightMouseUp = [&](forms::TwipPoint) { ++raised; };
  const auto ask = [](LPARAM place) {
    SendMessageW(pane().handle(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(pane().handle()), place);
  };
  // Two 16-bit numbers, which need not fill the upper half of the parameter.
  ask(static_cast<LPARAM>(0xFFFFFFFF));
  EXPECT_EQ(raised, 1);
  ask(-1);
  EXPECT_EQ(raised, 2);
  ask(MAKELPARAM(-1, 300));
  ask(MAKELPARAM(300, -1));
  EXPECT_EQ(raised, 2);
}

TEST_F(RichTextBoxTest, HoldsItsRepaintAndThenShowsWhatChanged) {
  opened<PaneForm>();
  {
    const forms::ScopedRepaintHold held(pane());
    pane().setText(u"quiet");
  }
  EXPECT_TRUE(GetUpdateRect(pane().handle(), nullptr, FALSE));
  forms::doEvents();
  EXPECT_EQ(pane().text(), u"quiet");
}

}  // namespace
}  // namespace support
