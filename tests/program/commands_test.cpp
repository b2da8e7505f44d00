// Every command of the toolbar's menu, and ending the program.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/program/harness/button.h"
#include "tests/program/harness/dictionary_windows.h"
#include "tests/program/harness/input.h"
#include "tests/program/harness/message_box.h"
#include "tests/program/harness/popup_menu.h"
#include "tests/program/harness/screen.h"

namespace harness {
namespace {

class Commands : public ::testing::Test {
 protected:
  Commands() { lexilo.waitUntilSeen(); }

  const Lexilo lexilo{AppFolder::withFullDictionary()};
};

TEST_F(Commands, TheMenuOpensEveryWindow) {
  lexilo.choose(MenuItem::multiFunction);
  waitForForm(lexilo.process(), L"frmMain");
  lexilo.choose(MenuItem::quickLookup);
  waitForForm(lexilo.process(), L"frmSub");
  lexilo.choose(MenuItem::dictionarySettings);
  waitForForm(lexilo.process(), L"frmdictSetting");
  lexilo.choose(MenuItem::about);
  waitForForm(lexilo.process(), L"frmAbout");
  // Open ones come to the front again.
  lexilo.choose(MenuItem::multiFunction);
  waitForForm(lexilo.process(), L"frmMain");
}

TEST_F(Commands, TheButtonsOpenTheSameWindows) {
  lexilo.click(ToolbarButton::multiFunction);
  HWND window = waitForForm(lexilo.process(), L"frmMain");
  lexilo.click(ToolbarButton::dictionarySettings);
  waitForForm(lexilo.process(), L"frmdictSetting");
  lexilo.choose(MenuItem::multiFunction);
  EXPECT_EQ(waitForForm(lexilo.process(), L"frmMain"), window);
}

TEST_F(Commands, TheAboutBoxSaysWhatItIsAndCloses) {
  lexilo.choose(MenuItem::about);
  HWND box = waitForForm(lexilo.process(), L"frmAbout");
  saveScreenshot("build/shots/about.png");
  std::wstring said;
  for (HWND child : childrenOf(box)) said += textOf(child) + L"\n";
  for (const wchar_t* text : {L"Lexilo 专业英汉汉英词典", L"版本：1.3", L"程序说明：",
                              L"Special Designed for Specialist！", L"联系方式：", L"MIT"}) {
    EXPECT_NE(said.find(text), said.npos) << testing::PrintToString(text);
  }
  for (HWND button : childrenOf(box, L"Button")) {
    if (IsWindowVisible(button) != FALSE) clickButton(button);
  }
  waitUntilGone(box);
  EXPECT_TRUE(lexilo.process().running());
}

TEST_F(Commands, TheMenusHelpStartsTheBrowserWithThePageThatIsThere) {
  const auto help = AppFolder::withFullDictionary().path() / "help" / "help.htm";
  ASSERT_TRUE(std::filesystem::exists(help));
  lexilo.choose(MenuItem::help);
  HWND browser = waitForWindow({.className = L"IEFrame", .title = {}});
  PostMessageW(browser, WM_CLOSE, 0, 0);
  waitUntilGone(browser);
}

TEST_F(Commands, ExitEndsItAtOnceWithEveryWindowOpen) {
  const MultiQuery main(lexilo);
  const SpecialQuery dialog(lexilo.process(), main);
  lexilo.click(ToolbarButton::dictionarySettings);
  waitForForm(lexilo.process(), L"frmdictSetting");
  lexilo.choose(MenuItem::quickLookup);
  waitForForm(lexilo.process(), L"frmSub");
  lexilo.choose(MenuItem::about);
  waitForForm(lexilo.process(), L"frmAbout");
  EXPECT_EQ(lexilo.exit(), 0U);
}

}  // namespace
}  // namespace harness
