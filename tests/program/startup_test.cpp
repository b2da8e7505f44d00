// From the start of the program to the toolbar, and to its end.
#include <gtest/gtest.h>

#include <filesystem>

#include "forms/geometry.h"
#include "tests/support/process/input.h"
#include "tests/support/process/lexilo.h"
#include "tests/support/process/message_box.h"
#include "tests/support/process/popup_menu.h"
#include "tests/support/process/screen.h"
#include "tests/support/process/settings.h"
#include "tests/support/process/system_programs.h"

namespace support {
namespace {

class Startup : public ::testing::Test {};

TEST_F(Startup, ShowsTheToolbarNearTheTopRightCorner) {
  const Lexilo lexilo(AppFolder::withFullDictionary());
  HWND toolbar = lexilo.waitUntilSeen();
  const int dpi = static_cast<int>(GetDpiForWindow(toolbar));
  const RECT rect = rectOf(toolbar);
  const int screen = forms::toTwips(GetSystemMetrics(SM_CXSCREEN), dpi);
  const int width = forms::toTwips(rect.right - rect.left, dpi);
  EXPECT_EQ(rect.top, forms::toPixels(375, dpi));
  EXPECT_EQ(rect.bottom - rect.top, forms::toPixels(375, dpi));
  EXPECT_NEAR(rect.left, forms::toPixels(screen - width - 1300, dpi), 1);
  EXPECT_TRUE(isTopmost(toolbar));
}

TEST_F(Startup, ASecondInstanceEndsWithoutAWindow) {
  const AppFolder folder = AppFolder::withFullDictionary();
  const Lexilo first(folder);
  first.waitUntilSeen();
  const Lexilo second(folder);
  const bool windowless = never(
      [&] {
        return findWindow({.process = second.process().id(), .className = {}, .title = {}}) !=
               nullptr;
      },
      1'000);
  EXPECT_TRUE(windowless);
  EXPECT_EQ(second.process().waitForExit(), 0U);
  EXPECT_TRUE(first.process().running());
  static_cast<void>(first.openQuickLookupAtA());
}

TEST_F(Startup, AnInstanceMayFollowOneThatHasEnded) {
  const AppFolder folder = AppFolder::withFullDictionary();
  for (int run = 0; run < 2; ++run) {
    const Lexilo lexilo(folder);
    lexilo.waitUntilSeen();
    EXPECT_EQ(lexilo.exit(), 0U);
  }
}

TEST_F(Startup, ExitEndsTheProgramWithAllItsWindows) {
  const Lexilo lexilo(AppFolder::withFullDictionary());
  lexilo.waitUntilSeen();
  static_cast<void>(lexilo.openQuickLookup());
  EXPECT_EQ(lexilo.exit(), 0U);
  EXPECT_EQ(findWindow({.process = lexilo.process().id(), .className = {}, .title = {}}), nullptr);
}

/// Tells all windows of a program that the session ends for it, as an installer does that has to
/// replace its files.
void endSessionFor(const Process& program) {
  const auto tell = [&](UINT message, WPARAM wParam) {
    std::pair<DWORD, std::vector<HWND>> found{program.id(), {}};
    EnumWindows(
        [](HWND window, LPARAM context) -> BOOL {
          auto& [id, windows] = *reinterpret_cast<decltype(found)*>(context);
          if (processOf(window) == id) windows.push_back(window);
          return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    DWORD_PTR answer = TRUE;
    for (HWND window : found.second) {
      constexpr UINT kTime = 5'000;
      SendMessageTimeoutW(window, message, wParam, static_cast<LPARAM>(ENDSESSION_CLOSEAPP),
                          SMTO_ABORTIFHUNG, kTime, &answer);
      EXPECT_TRUE(message != WM_QUERYENDSESSION || answer != FALSE);
    }
  };
  tell(WM_QUERYENDSESSION, 0);
  tell(WM_ENDSESSION, TRUE);
}

TEST_F(Startup, AnInstallerThatClosesItEndsItAndItCanBeStartedAgain) {
  const AppFolder folder = AppFolder::withFullDictionary();
  settings::clear();
  const Lexilo lexilo(folder);
  lexilo.waitUntilSeen();
  static_cast<void>(lexilo.openQuickLookupAtA());
  endSessionFor(lexilo.process());
  EXPECT_EQ(lexilo.process().waitForExit(), 0U);
  EXPECT_EQ(settings::read(L"WindowWidth"), L"3500");
  settings::clear();
  const Lexilo again(folder);
  again.waitUntilSeen();
}

TEST_F(Startup, TheEndOfTheSessionEndsItWhileAMessageOrAMenuIsOpen) {
  {
    const Lexilo lexilo(AppFolder::withoutDictionary());
    static_cast<void>(waitForMessageBox(lexilo.process()));
    endSessionFor(lexilo.process());
    EXPECT_EQ(lexilo.process().waitForExit(), 0U);
  }
  const Lexilo lexilo(AppFolder::withFullDictionary());
  lexilo.waitUntilSeen();
  lexilo.dropMenu();
  endSessionFor(lexilo.process());
  EXPECT_EQ(lexilo.process().waitForExit(), 0U);
}

TEST_F(Startup, LooksUpEnglishAlsoWhenTheToolbarLosesTheFocusAtOnce) {
  const Notepad notepad;
  notepad.place({100, 300, 600, 600});
  const POINT text = centreOf(clientRectOf(onlyChild(notepad.window(), L"Edit")));
  input::moveTo(text);
  const Lexilo lexilo(AppFolder::withFullDictionary());
  static_cast<void>(lexilo.toolbar());
  waitFor("Notepad to be in front", [&] {
    input::click(text);
    return eventually([&] { return GetForegroundWindow() == notepad.window(); }, kReactionTime);
  });
  lexilo.waitUntilSeen();
  const QuickLookup window = lexilo.openQuickLookupAtA();
  EXPECT_GT(window.words().size(), 10U);
  window.lookUp(L"data");
  EXPECT_EQ(window.words().front(), L"data");
}

TEST_F(Startup, TheFirstButtonPressedAtOnceStillShowsTheFirstWords) {
  const Lexilo lexilo(AppFolder::withFullDictionary());
  lexilo.waitUntilPainted();
  const QuickLookup window = lexilo.openQuickLookup();
  EXPECT_FALSE(window.words().empty());
  window.lookUp(L"data");
}

TEST_F(Startup, WithoutADictionaryItSaysSoAndGoesOn) {
  const AppFolder folder = AppFolder::withoutDictionary();
  const Lexilo lexilo(folder);
  const ShownMessage box = waitForMessageBox(lexilo.process());
  EXPECT_EQ(box.title, L"");
  EXPECT_EQ(box.text, L"找不到词典文件，或者无法打开它：\n" + folder.databaseAsShown() +
                          L"\n请确认这个文件与程序在同一文件夹中，并且没有被其他程序占用。"
                          L"如果它不见了，请重新解压或重新安装 Lexilo。"
                          L"\n\nunable to open database file");
  EXPECT_TRUE(box.criticalIcon);
  saveScreenshot("build/shots/no-dictionary.png");
  box.answer();
  EXPECT_EQ(lexilo.exit(), 0U);
  EXPECT_FALSE(std::filesystem::exists(folder.database()));
}

TEST_F(Startup, WithoutADictionaryTheQuickLookupWindowStillOpensAndCloses) {
  const Lexilo lexilo(AppFolder::withoutDictionary());
  waitForMessageBox(lexilo.process()).answer();
  lexilo.click(ToolbarButton::kQuickLookup);
  waitForMessageBox(lexilo.process()).answer();
  const QuickLookup window(lexilo.process());
  window.type(L"data");
  window.type(L"数据");
  EXPECT_EQ(window.words().size(), 0U);
  EXPECT_EQ(findMessageBox(lexilo.process()), std::nullopt);
  window.close();
  EXPECT_EQ(lexilo.exit(), 0U);
}

}  // namespace
}  // namespace support
