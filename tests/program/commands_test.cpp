// Every command of the toolbar's menu, and ending the program.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <utility>
#include <vector>

#include "tests/support/process/controls.h"
#include "tests/support/process/dictionary_windows.h"
#include "tests/support/process/input.h"
#include "tests/support/process/message_box.h"
#include "tests/support/process/popup_menu.h"
#include "tests/support/process/screen.h"
#include "tests/support/process/settings.h"
#include "tests/support/process/system_programs.h"

namespace support {
namespace {

class Commands : public ::testing::Test {
 protected:
  Commands() { lexilo.waitUntilSeen(); }

  const Lexilo lexilo{AppFolder::withFullDictionary()};
};

TEST_F(Commands, TheMenuOpensEveryWindow) {
  lexilo.choose(MenuItem::kMultiFunction);
  waitForForm(lexilo.process(), L"frmMain");
  lexilo.choose(MenuItem::kQuickLookup);
  waitForForm(lexilo.process(), L"frmSub");
  lexilo.choose(MenuItem::kDictionarySettings);
  waitForForm(lexilo.process(), L"frmdictSetting");
  lexilo.choose(MenuItem::kAbout);
  waitForForm(lexilo.process(), L"frmAbout");
  // Open ones come to the front again.
  lexilo.choose(MenuItem::kMultiFunction);
  waitForForm(lexilo.process(), L"frmMain");
}

TEST_F(Commands, TheButtonsOpenTheSameWindows) {
  lexilo.click(ToolbarButton::kMultiFunction);
  HWND window = waitForForm(lexilo.process(), L"frmMain");
  lexilo.click(ToolbarButton::kDictionarySettings);
  waitForForm(lexilo.process(), L"frmdictSetting");
  lexilo.choose(MenuItem::kMultiFunction);
  EXPECT_EQ(waitForForm(lexilo.process(), L"frmMain"), window);
}

TEST_F(Commands, TheAboutBoxSaysWhatItIsAndCloses) {
  lexilo.choose(MenuItem::kAbout);
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
  lexilo.choose(MenuItem::kHelp);
  const Browser browser;
  browser.waitForAddress(L"file://" + help.wstring());
}

TEST_F(Commands, TheWebSiteIsOpenedInTheBrowser) {
  lexilo.choose(MenuItem::kHomePage);
  const Browser browser;
  browser.waitForAddress(L"" LEXILO_HOME_PAGE);
}

TEST(CommandsElsewhere, HelpFromAFolderWithBlanksIsTheStatedPage) {
  const AppFolder folder = AppFolder::withSmallDictionary(L"my programs and Lexilo 1.3");
  const Lexilo lexilo(folder);
  lexilo.waitUntilSeen();
  lexilo.choose(MenuItem::kHelp);
  const Browser browser;
  browser.waitForAddress(L"file://" + (folder.path() / L"help" / L"help.htm").wstring());
}

/// How the menu looks, row by row, when it is dropped down.
std::vector<COLORREF> lookOf(const Lexilo& lexilo, SIZE& size) {
  const RECT rect = rectOf(lexilo.dropMenu());
  size = sizeOf(rect);
  std::vector<COLORREF> last;
  waitFor("the menu to be painted",
          [&] { return std::exchange(last, screenPixels(rect)) == last && !last.empty(); });
  popup_menu::dismiss(lexilo.process());
  return last;
}

/// The smallest rectangle that holds all differences of two pictures.
RECT differenceOf(const std::vector<COLORREF>& one, const std::vector<COLORREF>& other,
                  LONG width) {
  RECT difference{};
  for (std::size_t i = 0; i < std::min(one.size(), other.size()); ++i) {
    if (one[i] == other[i]) continue;
    const LONG x = static_cast<LONG>(i) % width;
    const LONG y = static_cast<LONG>(i) / width;
    const RECT pixel{x, y, x + 1, y + 1};
    UnionRect(&difference, &difference, &pixel);
  }
  return difference;
}

TEST_F(Commands, TheMenuShowsByItsCheckMarkWhetherCaptureIsOn) {
  SIZE size{};
  const std::vector<COLORREF> on = lookOf(lexilo, size);
  lexilo.click(ToolbarButton::kCapture);
  const std::vector<COLORREF> off = lookOf(lexilo, size);
  ASSERT_EQ(on.size(), off.size());
  const RECT mark = differenceOf(on, off, size.cx);
  ASSERT_FALSE(IsRectEmpty(&mark));
  // At the left end of the third of eight items and three separators.
  EXPECT_LT(mark.right, size.cx / 3);
  EXPECT_GT(mark.top, size.cy / 6);
  EXPECT_LT(mark.bottom, size.cy * 2 / 5);
  lexilo.click(ToolbarButton::kCapture);
  EXPECT_EQ(lookOf(lexilo, size), on);
  lexilo.choose(MenuItem::kCapture);
  waitFor("the menu to close", [&] { return !popup_menu::isOpen(lexilo.process()); });
  EXPECT_EQ(lookOf(lexilo, size), off);
}

/// The sizes that are kept, put there by the test and taken away again.
class KeptSizes {
 public:
  KeptSizes() {
    settings::clear();
    settings::write(L"WindowWidth", L"5000");
    settings::write(L"WindowHeight", L"4000");
    settings::write(L"TreeWidth", L"2000");
  }
  KeptSizes(const KeptSizes&) = delete;
  KeptSizes& operator=(const KeptSizes&) = delete;
  ~KeptSizes() { settings::clear(); }

  [[nodiscard]] bool unchanged() const {
    return settings::read(L"WindowWidth") == L"5000" &&
           settings::read(L"WindowHeight") == L"4000" && settings::read(L"TreeWidth") == L"2000";
  }
};

// The quick lookup window keeps its sizes when it is unloaded.
TEST_F(Commands, ExitUnloadsNoWindow) {
  const KeptSizes kept;
  const QuickLookup window = lexilo.openQuickLookup();
  const RECT before = rectOf(window.window());
  placeWindow(window.window(), {before.left, before.top, before.right + 150, before.bottom + 90});
  EXPECT_EQ(lexilo.exit(), 0U);
  EXPECT_TRUE(kept.unchanged());
}

TEST_F(Commands, ExitEndsItAtOnceWithEveryWindowOpen) {
  const MultiQuery main(lexilo);
  const SpecialQuery dialog(lexilo.process(), main);
  lexilo.click(ToolbarButton::kDictionarySettings);
  waitForForm(lexilo.process(), L"frmdictSetting");
  lexilo.choose(MenuItem::kQuickLookup);
  waitForForm(lexilo.process(), L"frmSub");
  lexilo.choose(MenuItem::kAbout);
  waitForForm(lexilo.process(), L"frmAbout");
  EXPECT_EQ(lexilo.exit(), 0U);
}

}  // namespace
}  // namespace support
