// Tests of the functions that drive programs from outside, on the system's own programs: what they
// type, read and click is really typed, read and clicked.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "tests/support/process/clipboard.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/find.h"
#include "tests/support/process/input.h"
#include "tests/support/process/message_box.h"
#include "tests/support/process/screen.h"
#include "tests/support/process/settings.h"
#include "tests/support/process/system_programs.h"

namespace support {
namespace {

class Support : public ::testing::Test {};

TEST_F(Support, TypesIntoAnotherProgramAndReadsItBack) {
  const Notepad notepad;
  notepad.clickIntoText();
  input::type(L"data 数据 做");
  waitFor("the typed text", [&] { return notepad.text() == L"data 数据 做"; });
}

TEST_F(Support, SelectsWithTheMouseAndCopiesWithKeys) {
  setClipboardText(L"before");
  const Notepad notepad;
  notepad.clickIntoText();
  input::type(L"bandwidth");
  waitFor("the typed text", [&] { return notepad.text() == L"bandwidth"; });
  HWND edit = onlyChild(notepad.window(), L"Edit");
  const RECT rect = clientRectOf(edit);
  actUntil(
      "a word to be selected",
      [&] {
        input::doubleClick({rect.left + 20, rect.top + 8});
      },
      [&] {
        return selectionOf(edit) == Selection{0, 9};
      });
  input::key('C', {VK_CONTROL});
  waitFor("the copied text", [] { return clipboardText() == L"bandwidth"; });
}

TEST_F(Support, SeesWhichNodesATreeShows) {
  const Process registry(L"C:\\windows\\regedit.exe");
  HWND window = waitForWindow({.process = registry.id(), .className = {}, .title = {}});
  HWND tree = waitForChild(window, L"SysTreeView32");
  EXPECT_EQ(treeTexts(tree).size(), 1U);
  EXPECT_FALSE(treeTexts(tree).front().empty());
  waitFor("the node's place", [&] { return treeNodeRect(tree, 0); });
  actUntil(
      "the node to be selected", [&] { input::click(centreOf(treeNodeRect(tree, 0).value())); },
      [&] { return treeSelection(tree) == 0; });
  EXPECT_EQ(treeNodeRect(tree, 1), std::nullopt);
}

TEST_F(Support, ReadsColoursAndPlacesInARichTextBox) {
  const Process wordpad(L"C:\\Program Files\\Windows NT\\Accessories\\wordpad.exe");
  HWND window = waitForWindow({.process = wordpad.id(), .className = {}, .title = {}});
  HWND pane = waitForChild(window, L"RichEdit20W");
  takeKeyboard(pane);
  input::type(L"ab");
  waitFor("the typed text", [&] { return textOf(pane) == L"ab"; });
  EXPECT_EQ(richTextColours(pane).size(), 2U);
  EXPECT_LT(richTextPosition(pane, 0).x, richTextPosition(pane, 1).x);
  selectRichText(pane, {1, 2});
  EXPECT_EQ(selectionOf(pane), (Selection{1, 2}));
}

TEST_F(Support, SeesWhatIsOnTheScreen) {
  const Notepad notepad;
  notepad.place({100, 100, 500, 400});
  const RECT text = clientRectOf(onlyChild(notepad.window(), L"Edit"));
  const RECT inside{text.left + 100, text.top + 100, text.left + 110, text.top + 110};
  waitFor("white paper", [&] {
    const auto pixels = screenPixels(inside);
    return std::ranges::count(pixels, RGB(255, 255, 255)) == 100;
  });
  saveScreenshot("build/shots/notepad.png");
  EXPECT_GT(std::filesystem::file_size("build/shots/notepad.png"), 1000U);
}

TEST_F(Support, ReadsAndAnswersAMessageBox) {
  // The shell reports a missing program in a message box.
  const Process shell(L"C:\\windows\\system32\\winhlp32.exe", L"nothing-of-this-name.hlp");
  const ShownMessage box = waitForMessageBox(shell);
  EXPECT_FALSE(box.text.empty());
  EXPECT_FALSE(box.buttons.empty());
  box.answer();
  EXPECT_EQ(findMessageBox(shell), std::nullopt);
}

TEST_F(Support, SettingsAreWrittenReadAndCleared) {
  settings::write(L"SupportKey", L"4711");
  EXPECT_EQ(settings::read(L"SupportKey"), L"4711");
  settings::clear();
  EXPECT_EQ(settings::read(L"SupportKey"), L"");
}

TEST_F(Support, KnowsHowAProgramEnded) {
  const Process shell(L"C:\\windows\\system32\\cmd.exe", L"/c exit 3");
  EXPECT_EQ(shell.waitForExit(), 3U);
  EXPECT_FALSE(shell.running());
  EXPECT_THROW(runBelow("false"), Failure);
}

}  // namespace
}  // namespace support
