// Words under the pointer in other programs.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <functional>
#include <random>

#include "tests/program/harness/clipboard.h"
#include "tests/program/harness/controls.h"
#include "tests/program/harness/input.h"
#include "tests/program/harness/lexilo.h"
#include "tests/program/harness/meaning_popup.h"
#include "tests/program/harness/notepad.h"
#include "tests/program/harness/screen.h"
#include "tests/program/harness/stopped.h"
#include "tests/program/harness/text.h"
#include "tests/program/harness/text_window.h"
#include "tests/program/harness/word_pad.h"
#include "tests/program/harness/word_page.h"

namespace harness {
namespace {

constexpr RECT kPage{40, 120, 840, 720};

class Capture : public ::testing::Test {
 protected:
  Capture() {
    input::moveTo(kAwayFromTexts);
    lexilo.waitUntilSeen();
  }

  /// Rests the pointer on a character of Notepad's text.
  static void restOn(const Notepad& notepad, LONG character) {
    const POINT place = editPosition(notepad.edit(), character);
    input::moveTo({place.x + 3, place.y + 6});
  }

  const Lexilo lexilo{AppFolder::withFullDictionary()};
  const MeaningPopup popup{lexilo.process()};
};

TEST_F(Capture, AWordInNotepadIsRead) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(L"The database holds many words.");
  restOn(notepad, 8);
  const std::wstring text = popup.waitFor(L"database");
  EXPECT_NE(text.find(L"数据库"), text.npos) << utf8(text);
  POINT pointer{};
  GetCursorPos(&pointer);
  const RECT rect = rectOf(popup.window());
  EXPECT_EQ(rect.left, pointer.x + 10);
  EXPECT_EQ(rect.top, pointer.y + 10);
  saveScreenshot("build/shots/popup.png");
}

TEST_F(Capture, AWordInWordPadIsRead) {
  const WordPad wordPad;
  wordPad.place(kPage);
  wordPad.setText(L"The enzyme is a catalyst.");
  const POINT place = richTextPosition(wordPad.edit(), 17);
  input::moveTo({place.x + 3, place.y + 6});
  const std::wstring text = popup.waitFor(L"catalyst");
  EXPECT_NE(text.find(L"催化剂"), text.npos) << utf8(text);
  saveScreenshot("build/shots/popup-wordpad.png");
}

TEST_F(Capture, AWordFoundWithoutItsLastLetterKeepsItsHeadline) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(L"Two isotopess and more");
  restOn(notepad, 6);
  const std::wstring text = popup.waitFor(L"isotopess");
  EXPECT_EQ(text.find(L"没找到"), text.npos) << utf8(text);
}

TEST_F(Capture, AWordThatIsNowhereIsNotFound) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(L"A zzqxwvk here");
  restOn(notepad, 4);
  EXPECT_EQ(popup.waitFor(L"zzqxwvk"), L"zzqxwvk\r\n<没找到>");
  saveScreenshot("build/shots/popup-not-found.png");
}

TEST_F(Capture, OneLetterAndChineseOpenNothing) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(L"A 数据库 database");
  restOn(notepad, 0);
  EXPECT_TRUE(popup.staysAway(400));
  restOn(notepad, 3);
  EXPECT_TRUE(popup.staysAway(400));
  restOn(notepad, 7);
  (void)popup.waitFor(L"database");
}

TEST_F(Capture, EnglishAmongChineseIsReadAlone) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(L"这个database很大，另一个kernel。");
  restOn(notepad, 4);
  (void)popup.waitFor(L"database");
  restOn(notepad, 18);
  (void)popup.waitFor(L"kernel");
}

TEST_F(Capture, MovingOnClosesThePopupAndReadsTheNextWord) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(L"database kernel");
  restOn(notepad, 2);
  (void)popup.waitFor(L"database");
  POINT pointer{};
  GetCursorPos(&pointer);
  input::moveTo({pointer.x + 5, pointer.y});
  EXPECT_TRUE(neverWithin(300, [&] { return !popup.isUp(); }));
  input::moveTo({pointer.x, pointer.y + 400});
  popup.waitUntilClosed();
  restOn(notepad, 11);
  (void)popup.waitFor(L"kernel");
}

TEST_F(Capture, BlanksMarginsAndPlacesBelowTheTextOpenNothing) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(L"database          kernel\r\n\r\nnetwork");
  restOn(notepad, 13);
  EXPECT_TRUE(popup.staysAway(350));
  const POINT end = editPosition(notepad.edit(), 23);
  input::moveTo({end.x + 60, end.y + 6});
  EXPECT_TRUE(popup.staysAway(350));
  const POINT last = editPosition(notepad.edit(), 28);
  input::moveTo({last.x + 3, last.y + 80});
  EXPECT_TRUE(popup.staysAway(350));
  input::moveTo({last.x + 3, last.y - 10});
  EXPECT_TRUE(popup.staysAway(350));
  restOn(notepad, 30);
  (void)popup.waitFor(L"network");
}

TEST_F(Capture, AnInstallersLicenceIsRead) {
  const Process installer(L"build\\licence-page.exe");
  HWND page = waitForWindow({.process = installer.id(), .className = L"#32770", .title = {}});
  HWND text = waitFor("the licence", [&]() -> HWND {
    for (HWND child : childrenOf(page)) {
      if (classOf(child) == L"RichEdit20W" || classOf(child) == L"RichEdit20A") return child;
    }
    return nullptr;
  });
  waitFor("its words", [&] { return textOf(text).find(L"catalyst") != std::wstring::npos; });
  for (const auto& [at, word] : {std::pair{6, L"catalyst"}, std::pair{21, L"membrane"}}) {
    const POINT place = richTextPosition(text, at);
    input::moveTo({place.x + 3, place.y + 6});
    (void)popup.waitFor(word);
    input::moveTo(kAwayFromTexts);
    popup.waitUntilClosed();
  }
}

TEST_F(Capture, ATextBoxOfItsOwnIsRead) {
  const QuickLookup window = lexilo.openQuickLookupAtA();
  window.lookUp(L"kernel");
  // While one types in it capture rests.
  const POINT word = editPosition(window.input(), 2);
  input::moveTo({word.x + 2, word.y + 6});
  EXPECT_TRUE(popup.staysAway(400));
  window.clickWord(0);
  input::moveTo({word.x + 2, word.y + 6});
  (void)popup.waitFor(L"kernel");
}

TEST_F(Capture, NeitherLabelsNorButtonsNorListsAreRead) {
  for (const wchar_t* kind :
       {L"Static", L"Button", L"ListBox", L"SysListView32", L"SysTreeView32", L"ComboLBox"}) {
    const TextWindow window(kind, 0, {300, 300, 500, 330}, L"database");
    input::moveTo({310, 310});
    EXPECT_TRUE(popup.staysAway(350)) << utf8(kind);
    input::moveTo(kAwayFromTexts);
  }
}

TEST_F(Capture, APasswordIsNeverRead) {
  const TextWindow hidden(L"Edit", ES_PASSWORD, {300, 300, 500, 330}, L"database");
  input::moveTo({305, 308});
  EXPECT_TRUE(popup.staysAway(500));
  const TextWindow open(L"Edit", 0, {300, 400, 500, 430}, L"database");
  input::moveTo({310, 408});
  (void)popup.waitFor(L"database");
}

TEST_F(Capture, AMenuIsNotRead) {
  const Notepad notepad;
  notepad.place(kPage);
  input::click({kPage.left + 20, kPage.top + 35});
  HWND menu = waitForWindow({.className = L"#32768", .title = {}});
  const RECT rect = rectOf(menu);
  input::moveTo({rect.left + 30, rect.top + 12});
  EXPECT_TRUE(popup.staysAway(400));
  input::key(VK_ESCAPE);
  input::key(VK_ESCAPE);
}

TEST_F(Capture, ThePlaceNearTheRightEdgeMovesThePopupInwards) {
  const int screen = GetSystemMetrics(SM_CXSCREEN);
  const TextWindow window(L"Edit", 0, {screen - 90, 300, screen, 330}, L"database");
  input::moveTo({screen - 60, 308});
  (void)popup.waitFor(L"database");
  EXPECT_NEAR(rectOf(popup.window()).right, screen - 30, 1);
  saveScreenshot("build/shots/popup-right-edge.png");
}

TEST_F(Capture, ThePlaceNearTheBottomIsNotMoved) {
  const int screen = GetSystemMetrics(SM_CYSCREEN);
  const TextWindow window(L"Edit", 0, {300, screen - 40, 500, screen - 10}, L"database");
  input::moveTo({310, screen - 30});
  (void)popup.waitFor(L"database");
  EXPECT_EQ(rectOf(popup.window()).top, screen - 20);
}

TEST_F(Capture, TypingGoesOnWhileThePopupOpensAndCloses) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(L"database kernel network\r\n");
  notepad.clickIntoText();
  input::key(VK_END, {VK_CONTROL});
  std::wstring typed = notepad.text();
  int popups = 0;
  for (int i = 0; i < 150; ++i) {
    restOn(notepad, std::array{2, 11, 18}.at(static_cast<std::size_t>(i / 25 % 3)));
    const auto letter = static_cast<wchar_t>(L'a' + (i % 26));
    input::type({&letter, 1});
    typed += letter;
    if (popup.isUp()) ++popups;
    ASSERT_EQ(GetForegroundWindow(), notepad.window());
    ASSERT_EQ(focusIn(notepad.window()), notepad.edit());
    Sleep(15);
  }
  EXPECT_GT(popups, 10);
  waitFor("all letters", [&] { return notepad.text() == typed; });
}

TEST_F(Capture, ASelectionStaysAsItIs) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(L"database kernel network");
  notepad.clickIntoText();
  input::key(VK_HOME);
  for (int i = 0; i < 8; ++i) input::key(VK_RIGHT, {VK_SHIFT});
  const Selection selected{0, 8};
  waitFor("the word to be selected", [&] { return selectionOf(notepad.edit()) == selected; });
  for (const LONG character : {2L, 11L, 18L}) {
    restOn(notepad, character);
    waitFor("a popup", [&] { return popup.isUp(); });
    EXPECT_EQ(selectionOf(notepad.edit()), selected);
    input::moveTo(kAwayFromTexts);
    popup.waitUntilClosed();
  }
}

TEST_F(Capture, TheClipboardStaysAsItIs) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(L"database kernel network");
  setClipboardText(L"kept");
  const DWORD before = GetClipboardSequenceNumber();
  for (const LONG character : {2L, 11L, 18L}) {
    restOn(notepad, character);
    waitFor("a popup", [&] { return popup.isUp(); });
    input::moveTo(kAwayFromTexts);
    popup.waitUntilClosed();
  }
  EXPECT_EQ(GetClipboardSequenceNumber(), before);
  EXPECT_EQ(clipboardText(), L"kept");
}

TEST_F(Capture, SwitchedOffItReadsNothingUntilSwitchedOnAgain) {
  const Notepad notepad;
  notepad.place(kPage);
  notepad.setText(L"database kernel network");
  const auto toggle = [&](bool byMenu) {
    if (byMenu) {
      lexilo.choose(MenuItem::capture);
    } else {
      lexilo.click(ToolbarButton::capture);
    }
  };
  for (const bool byMenu : {false, true}) {
    // The toolbar keeps the focus: without it capture would run again.
    toggle(byMenu);
    restOn(notepad, 2);
    EXPECT_TRUE(popup.staysAway(500));
    toggle(byMenu);
    restOn(notepad, 11);
    (void)popup.waitFor(L"kernel");
    input::moveTo(kAwayFromTexts);
    popup.waitUntilClosed();
  }
}

/// How long the toolbar takes to answer, in ms: the median and the longest of two seconds' tries.
std::pair<double, double> answerTimes(HWND toolbar) {
  std::vector<double> times;
  const ULONGLONG end = GetTickCount64() + 2'000;
  LARGE_INTEGER frequency{};
  QueryPerformanceFrequency(&frequency);
  while (GetTickCount64() < end) {
    LARGE_INTEGER start{};
    LARGE_INTEGER stop{};
    QueryPerformanceCounter(&start);
    send(toolbar, WM_NULL);
    QueryPerformanceCounter(&stop);
    times.push_back(static_cast<double>(stop.QuadPart - start.QuadPart) * 1000.0 /
                    static_cast<double>(frequency.QuadPart));
    Sleep(5);
  }
  std::ranges::sort(times);
  return {times.at(times.size() / 2), times.back()};
}

TEST_F(Capture, AWindowThatDoesNotAnswerHoldsNothingUp) {
  const TextWindow window(L"Edit", 0, {300, 300, 500, 330}, L"database");
  const TextWindow other(L"Edit", 0, {300, 400, 500, 430}, L"kernel");
  {
    const TextWindow::Busy busy(window);
    input::moveTo({310, 308});
    const auto [median, longest] = answerTimes(lexilo.toolbar());
    EXPECT_LT(median, 50);
    EXPECT_LT(longest, 1000);
    EXPECT_FALSE(popup.isUp());
    input::moveTo({310, 408});
    (void)popup.waitFor(L"kernel");
    input::moveTo(kAwayFromTexts);
  }
  popup.waitUntilClosed();
}

TEST_F(Capture, AStoppedProgramHoldsNothingUp) {
  std::ofstream("build/program-to-be-stopped.txt") << "database kernel network";
  const Notepad notepad(L"build\\program-to-be-stopped.txt");
  notepad.place(kPage);
  const POINT place = editPosition(notepad.edit(), 2);
  {
    const Stopped stopped("program-to-be-stopped");
    input::moveTo({place.x + 3, place.y + 6});
    const auto [median, longest] = answerTimes(lexilo.toolbar());
    EXPECT_LT(median, 50);
    EXPECT_LT(longest, 1000);
    EXPECT_FALSE(popup.isUp());
    lexilo.click(ToolbarButton::quickLookup);
    const QuickLookup window(lexilo.process());
    window.close();
  }
  // A window that was let alone for a while is asked again.
  const auto moment = std::chrono::steady_clock::now();
  input::moveTo(kAwayFromTexts);
  waitFor(
      "the program to be read again",
      [&] {
        input::moveTo(kAwayFromTexts);
        restOn(notepad, 2);
        return !popup.staysAway(400);
      },
      60'000);
  RecordProperty("ms until read again",
                 std::to_string(std::chrono::duration_cast<std::chrono::milliseconds>(
                                    std::chrono::steady_clock::now() - moment)
                                    .count()));
}

/// Rests the pointer on 200 words of a page and counts those whose popup names them.
int wordsRead(const MeaningPopup& popup, const WordPage& page, const RECT& visible,
              const std::function<POINT(LONG)>& position, const std::function<LONG(int)>& count) {
  std::minstd_rand random(7);
  int read = 0;
  for (int tried = 0; tried < 200;) {
    const auto& [start, word] = page.words()[random() % page.words().size()];
    const int inside = static_cast<int>(random() % word.size());
    if (word[static_cast<std::size_t>(inside)] == L'-') continue;
    const POINT place = position(count(start + inside));
    const POINT point{place.x + 3, place.y + 6};
    if (!PtInRect(&visible, point) || WindowFromPoint(point) == nullptr) continue;
    ++tried;
    input::moveTo(point);
    try {
      (void)popup.waitFor(word);
      ++read;
    } catch (const Failure& failure) {
      ADD_FAILURE() << failure.what() << " at character " << start + inside
                    << ", shown: " << utf8(popup.text());
    }
    // Away, or the next word could be read from a popup that is still up.
    input::moveTo(kAwayFromTexts);
    popup.waitUntilClosed();
  }
  return read;
}

TEST_F(Capture, TwoHundredWordsOfAPageInNotepad) {
  const Notepad notepad;
  notepad.place(kPage);
  const WordPage page(1, 60, 70);
  notepad.setText(page.text());
  RECT visible = clientRectOf(notepad.edit());
  InflateRect(&visible, -10, -20);
  EXPECT_EQ(wordsRead(
                popup, page, visible, [&](LONG at) { return editPosition(notepad.edit(), at); },
                [](int at) { return static_cast<LONG>(at); }),
            200);
}

TEST_F(Capture, TwoHundredWordsOfAPageInWordPad) {
  const WordPad wordPad;
  wordPad.place(kPage);
  const WordPage page(2, 60, 70);
  wordPad.setText(page.text());
  RECT visible = clientRectOf(wordPad.edit());
  InflateRect(&visible, -10, -20);
  // The control counts a line's end once.
  const auto count = [&](int at) {
    const auto end = page.text().begin() + at;
    return static_cast<LONG>(at - std::count(page.text().begin(), end, L'\r'));
  };
  EXPECT_EQ(wordsRead(
                popup, page, visible, [&](LONG at) { return richTextPosition(wordPad.edit(), at); },
                count),
            200);
}

TEST_F(Capture, AWordDeepInALongTextIsRead) {
  const Notepad notepad;
  notepad.place(kPage);
  const WordPage page(3, 5000, 75);
  ASSERT_GT(page.text().size(), 380'000U);
  notepad.setText(page.text());
  for (const std::size_t number : {page.words().size() / 2, page.words().size() - 30}) {
    const auto& [start, word] = page.words()[number];
    send(notepad.edit(), EM_SETSEL, static_cast<WPARAM>(start), start);
    send(notepad.edit(), EM_SCROLLCARET);
    restOn(notepad, start);
    (void)popup.waitFor(word);
    input::moveTo(kAwayFromTexts);
    popup.waitUntilClosed();
  }
}

}  // namespace
}  // namespace harness
