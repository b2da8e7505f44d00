// Words under the pointer in other programs.
#include <array>
#include <filesystem>
#include <fstream>
#include <utility>

#include "tests/program/capture_fixture.h"
#include "tests/support/process/clipboard.h"
#include "tests/support/process/screen.h"
#include "tests/support/process/system_programs.h"
#include "tests/support/process/text.h"
#include "tests/support/process/text_window.h"

namespace support {
namespace {

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

TEST_F(Capture, AWordOfLargeTypeInWordPadsLastLineIsReadAtItsLowerEdgeToo) {
  const auto file = std::filesystem::absolute("build/large-type.rtf");
  std::ofstream(file) << R"({\rtf1\ansi{\fonttbl{\f0 Times New Roman;}}\f0\fs20 )"
                      << R"(Small type before it.\par\fs72 The catalyst})";
  const WordPad wordPad(file.wstring());
  wordPad.place(kPage);
  waitFor("the text", [&] { return textOf(wordPad.edit()).ends_with(L"The catalyst"); });
  constexpr LONG kLetterY = 31;
  constexpr LONG kBaseLine = 43;  // of type of 36 points (48 pixels) below the line's upper edge
  const POINT place = richTextPosition(wordPad.edit(), kLetterY);
  input::moveTo({place.x + 4, place.y + kBaseLine + 3});
  (void)popup.waitFor(L"catalyst");
  saveScreenshot("build/shots/popup-wordpad-large.png");
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
  EXPECT_TRUE(never([&] { return !popup.isUp(); }, 300));
  input::moveTo({pointer.x, pointer.y + 400});
  popup.waitUntilClosed();
  restOn(notepad, 11);
  (void)popup.waitFor(L"kernel");
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
  for (const auto& [character, word] :
       {std::pair(2L, L"database"), std::pair(11L, L"kernel"), std::pair(18L, L"network")}) {
    restOn(notepad, character);
    (void)popup.waitFor(word);
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
  for (const auto& [character, word] :
       {std::pair(2L, L"database"), std::pair(11L, L"kernel"), std::pair(18L, L"network")}) {
    restOn(notepad, character);
    (void)popup.waitFor(word);
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
      lexilo.choose(MenuItem::kCapture);
    } else {
      lexilo.click(ToolbarButton::kCapture);
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

}  // namespace
}  // namespace support
