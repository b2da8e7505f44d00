// Looking words up in the quick lookup window, as a user does.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "tests/support/process/clipboard.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/input.h"
#include "tests/support/process/lexilo.h"
#include "tests/support/process/overlay_window.h"
#include "tests/support/process/popup_menu.h"
#include "tests/support/process/screen.h"
#include "tests/support/process/system_programs.h"

namespace support {
namespace {

class Lookup : public ::testing::Test {
 protected:
  Lookup() { lexilo.waitUntilSeen(); }

  const Lexilo lexilo{AppFolder::withFullDictionary()};
  const QuickLookup window = lexilo.openQuickLookupAtA();
};

/// A word whose list is long in every dictionary: a list ends where a block of rows does, which may
/// be soon after any other word.
constexpr wchar_t kFirstWord[] = L"a";

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

TEST_F(Lookup, OpensAtTheLetterA) {
  window.waitForHeadword(L"a");
  EXPECT_GT(window.words().size(), 10U);
  EXPECT_LE(window.words().size(), 75U);
  EXPECT_EQ(window.words().front(), L"a");
  EXPECT_EQ(treeSelection(window.list()), 0);
  EXPECT_EQ(textOf(window.window()), L"速查 V1.3");
  EXPECT_TRUE(isTopmost(window.window()));
  EXPECT_EQ(focusIn(window.window()), window.input());
}

/// Whether a control shows what it shows after all of it, frame included, was painted anew.
bool isPaintedWhole(HWND control) {
  const RECT rect = rectOf(control);
  const std::vector<COLORREF> shown = settledPixels(rect);
  RedrawWindow(control, nullptr, nullptr,
               RDW_ERASE | RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
  return settledPixels(rect) == shown;
}

bool scrolls(HWND control) { return (GetWindowLongPtrW(control, GWL_STYLE) & WS_VSCROLL) != 0; }

TEST_F(Lookup, TheScrollBarsSayThatThereIsMore) {
  for (const auto& [word, more] : std::initializer_list<std::pair<const wchar_t*, bool>>{
           {L"ge", false}, {L"get", true}, {L"ge", false}, {L"set", true}}) {
    window.type(word);
    waitFor("the meanings", [&] { return scrolls(window.pane()) == more; });
    EXPECT_TRUE(isPaintedWhole(window.pane()));
    EXPECT_TRUE(isPaintedWhole(window.list()));
  }
}

TEST_F(Lookup, AnEnglishWordShowsItsNeighboursAndItsMeaning) {
  window.lookUp(L"data");
  EXPECT_EQ(window.words().front(), L"data");
  EXPECT_EQ(treeSelection(window.list()), 0);
  EXPECT_NE(window.meaning().find(L" 数据"), std::wstring::npos) << "the pane lacks it";
  saveScreenshot("build/shots/english.png");
}

TEST_F(Lookup, AChineseWordShowsItsNeighboursAndItsMeaning) {
  window.lookUp(L"数据");
  EXPECT_EQ(window.words().front(), L"数据");
  EXPECT_EQ(treeSelection(window.list()), 0);
  EXPECT_NE(window.meaning().find(L" data"), std::wstring::npos) << "the pane lacks it";
  saveScreenshot("build/shots/chinese.png");
}

/// Whether a headword begins with a text, whatever the case.
bool beginsWith(const std::wstring& word, const std::wstring& text) {
  return lstrcmpiW(word.substr(0, text.size()).c_str(), text.c_str()) == 0;
}

TEST_F(Lookup, EveryLetterTypedMovesTheList) {
  std::wstring typed;
  takeKeyboard(window.input());
  for (const wchar_t letter : std::wstring(L"computer")) {
    input::type({&letter, 1});
    typed += letter;
    waitFor("the list to follow", [&] {
      const std::vector<std::wstring> words = window.words();
      return !words.empty() && beginsWith(words.front(), typed);
    });
    EXPECT_EQ(treeSelection(window.list()), 0);
    EXPECT_EQ(window.headword(), window.words().front());
  }
  EXPECT_EQ(window.headword(), L"computer");
}

TEST_F(Lookup, TheHeadwordIsRedAndItsMeaningsAreBlue) {
  window.lookUp(L"data");
  const std::vector<COLORREF> colours = richTextColours(window.pane());
  // The control counts the line end after the headword as one character.
  const std::size_t head = std::wstring_view(L" data\n").size();
  ASSERT_GT(colours.size(), head);
  for (std::size_t i = 0; i < colours.size(); ++i) {
    EXPECT_EQ(colours[i], i < head ? kRed : kBlue) << "character " << i;
  }
  EXPECT_EQ(selectionOf(window.pane()), (Selection{1, 1}));
}

TEST_F(Lookup, AClickOnAWordShowsItsMeaning) {
  window.lookUp(kFirstWord);
  const std::vector<std::wstring> words = window.words();
  for (const int index : {3, 1, 5}) {
    window.clickWord(index);
    window.waitForHeadword(words.at(static_cast<std::size_t>(index)));
    EXPECT_EQ(treeSelection(window.list()), index);
  }
  EXPECT_EQ(window.words(), words);
}

TEST_F(Lookup, AClickOnAChineseWordShowsItsMeaning) {
  window.lookUp(L"数据");
  const std::wstring word = window.words().at(2);
  window.clickWord(2);
  window.waitForHeadword(word);
}

TEST_F(Lookup, TheKeysGoFromTheBoxToTheListAndBack) {
  window.lookUp(kFirstWord);
  const std::vector<std::wstring> words = window.words();
  input::key(VK_DOWN);
  waitFor("the list to get the keyboard",
          [&] { return focusIn(window.window()) == window.list(); });
  const auto start = static_cast<std::size_t>(treeSelection(window.list()).value_or(0));
  input::key(VK_DOWN);
  window.waitForHeadword(words.at(start + 1));
  input::key(VK_DOWN);
  window.waitForHeadword(words.at(start + 2));
  input::key(VK_UP);
  window.waitForHeadword(words.at(start + 1));
  input::key(VK_RETURN);
  EXPECT_EQ(window.headword(), words.at(start + 1));
  input::key(VK_ESCAPE);
  waitFor("the box to get the keyboard",
          [&] { return focusIn(window.window()) == window.input(); });
  EXPECT_EQ(window.typed(), kFirstWord);
}

TEST_F(Lookup, EnterShowsTheMeaningOfTheSelectedWord) {
  window.lookUp(kFirstWord);
  const std::wstring third = window.words().at(2);
  window.clickWord(2);
  window.waitForHeadword(third);
  // Another text in the pane, so that Enter has something to do.
  send(window.pane(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
  waitFor("an empty pane", [&] { return window.meaning().empty(); });
  input::key(VK_RETURN);
  window.waitForHeadword(third);
}

TEST_F(Lookup, AnApostropheIsLookedUpAndShownDoubled) {
  window.lookUp(L"it's", L"it''s");
  EXPECT_EQ(window.words().front(), L"it's");
}

TEST_F(Lookup, ATextThatStartsWithAWildcardIsRefused) {
  window.lookUp(L"data");
  for (const wchar_t* refused : {L"?", L"*", L"_", L"%"}) {
    takeKeyboard(window.input());
    input::key(VK_HOME);
    input::type(refused);
    waitFor("an empty box", [&] { return window.typed().empty(); });
    EXPECT_EQ(window.meaning(), L"");
    window.lookUp(L"data");
  }
}

TEST_F(Lookup, ATextAfterTheLastWordLeavesTheListAsItWas) {
  window.lookUp(L"data");
  const std::vector<std::wstring> words = window.words();
  window.type(L"~~");
  EXPECT_TRUE(never([&] { return window.words() != words; }, 300));
  EXPECT_EQ(window.headword(), L"data");
}

/// Selects with the mouse, from the first character to the one after the last, as the pane counts.
void sweep(HWND pane, LONG first, LONG end) {
  const POINT from = richTextPosition(pane, first);
  const POINT to = richTextPosition(pane, end);
  actUntil(
      "the selection",
      [&] {
        input::drag({from.x + 1, from.y + 6}, {to.x + 1, to.y + 6});
      },
      [&] {
        return selectionOf(pane) == Selection{first, end};
      });
}

TEST_F(Lookup, ASelectionIsLookedUpThroughThePanesMenu) {
  window.lookUp(L"data");
  const std::wstring text = window.meaning();
  // Positions count a line end as one character, the text has two.
  const std::size_t place = text.find(L" 数据") + 1;
  const auto lineEnds = std::count(text.begin(), text.begin() + static_cast<long>(place), L'\n');
  const LONG first = static_cast<LONG>(place) - static_cast<LONG>(lineEnds);
  sweep(window.pane(), first, first + 2);
  const POINT inside = richTextPosition(window.pane(), first + 1);
  input::rightClick({inside.x, inside.y + 6});
  popup_menu::waitForMenu(lexilo.process());
  saveScreenshot("build/shots/pane-menu.png");
  popup_menu::choose(1);
  window.waitForHeadword(L"数据");
  EXPECT_EQ(window.typed(), L"数据");
  const Selection left = selectionOf(window.pane());
  EXPECT_EQ(left.first, left.end);
}

TEST_F(Lookup, ASelectionIsCopiedThroughThePanesMenuWithWindowsLineEnds) {
  setClipboardText(L"before");
  window.lookUp(L"bit");
  const std::wstring text = window.meaning();
  ASSERT_TRUE(text.starts_with(L" bit\r\n ")) << "the pane shows something else";
  // From "bit" into the second line: the line end between them counts as one.
  sweep(window.pane(), 1, 8);
  const POINT inside = richTextPosition(window.pane(), 2);
  input::rightClick({inside.x, inside.y + 6});
  popup_menu::waitForMenu(lexilo.process());
  popup_menu::choose(2);
  waitFor("the copied text", [&] { return clipboardText() == text.substr(1, 8); });
}

TEST_F(Lookup, WithoutASelectionThePanesMenuDoesNothing) {
  setClipboardText(L"before");
  window.lookUp(L"data");
  input::rightClick(centreOf(clientRectOf(window.pane())));
  popup_menu::waitForMenu(lexilo.process());
  saveScreenshot("build/shots/pane-menu-disabled.png");
  popup_menu::choose(2);
  EXPECT_TRUE(never([] { return clipboardText() != L"before"; }, 200));
  if (popup_menu::isOpen(lexilo.process())) popup_menu::dismiss(lexilo.process());
  EXPECT_EQ(window.typed(), L"data");
}

TEST_F(Lookup, RepaintingDoesNotDisturbTypingIntoTheWindow) {
  window.type(L"x");
  std::wstring typed = L"x";
  for (int i = 0; i < 100; ++i) {
    const auto letter = static_cast<wchar_t>(L'a' + (i % 26));
    input::type({&letter, 1});
    typed += letter;
    repaint(lexilo.toolbar());
    repaint(window.window());
    ASSERT_EQ(focusIn(window.window()), window.input());
  }
  waitFor("all letters", [&] { return window.typed() == typed; });
}

TEST_F(Lookup, RepaintingDoesNotDisturbTypingIntoAnotherProgram) {
  const Notepad notepad;
  notepad.place({100, 400, 600, 700});
  notepad.clickIntoText();
  std::wstring typed;
  for (int i = 0; i < 100; ++i) {
    const auto letter = static_cast<wchar_t>(L'a' + (i % 26));
    input::type({&letter, 1});
    typed += letter;
    repaint(lexilo.toolbar());
    repaint(window.window());
    ASSERT_EQ(GetForegroundWindow(), notepad.window());
  }
  waitFor("all letters", [&] { return notepad.text() == typed; });
}

TEST_F(Lookup, ComesBackAboveAllOthersWheneverItPaints) {
  const RECT rect = clientRectOf(window.window());
  const OverlayWindow cover({rect.left, rect.top, rect.right, rect.top + 100});
  const POINT covered{rect.left + 20, rect.top + 5};
  waitFor("the window to be covered", [&] { return topWindowAt(covered) == cover.window(); });
  repaint(window.window());
  waitFor("the window to be above again", [&] { return topWindowAt(covered) == window.window(); });
}

TEST_F(Lookup, OpenedAgainItStartsAtTheLetterA) {
  window.lookUp(L"data");
  window.close();
  const QuickLookup again = lexilo.openQuickLookup();
  again.waitForHeadword(L"a");
  EXPECT_EQ(again.typed(), L"");
}

}  // namespace
}  // namespace support
