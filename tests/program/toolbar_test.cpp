// The toolbar under the user's mouse.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <utility>

#include "forms/geometry.h"
#include "tests/support/process/input.h"
#include "tests/support/process/lexilo.h"
#include "tests/support/process/message_box.h"
#include "tests/support/process/overlay_window.h"
#include "tests/support/process/popup_menu.h"
#include "tests/support/process/screen.h"
#include "tests/support/process/system_programs.h"

namespace support {
namespace {

class Toolbar : public ::testing::Test {
 protected:
  Toolbar() { lexilo.waitUntilSeen(); }

  const Lexilo lexilo{AppFolder::withFullDictionary()};
  const HWND toolbar = lexilo.toolbar();
};

POINT cornerOf(HWND window) {
  const RECT rect = rectOf(window);
  return {rect.left, rect.top};
}

bool cornerAt(HWND window, POINT target) {
  const POINT corner = cornerOf(window);
  return corner.x == target.x && corner.y == target.y;
}

void waitForCornerAt(HWND window, POINT target) {
  waitFor("the toolbar to be where it was dragged", [&] { return cornerAt(window, target); });
}

TEST_F(Toolbar, TheFirstDragTakesItsCornerToThePointer) {
  input::drag(centreOf(lexilo.grip()), {500, 400});
  waitForCornerAt(toolbar, {500, 400});
}

TEST_F(Toolbar, EveryLaterDragKeepsThePointWhereItWasGripped) {
  input::drag(centreOf(lexilo.grip()), {500, 400});
  waitForCornerAt(toolbar, {500, 400});
  for (const POINT target : {POINT{300, 600}, POINT{800, 200}}) {
    POINT expected{};
    const auto drag = [&] {
      const POINT grip = centreOf(lexilo.grip());
      const POINT before = cornerOf(toolbar);
      expected = {before.x + target.x - grip.x, before.y + target.y - grip.y};
      input::drag(grip, target);
    };
    actUntil("the toolbar to be where it was dragged", drag,
             [&] { return cornerAt(toolbar, expected); });
  }
}

TEST_F(Toolbar, KeepsItsSizeWhenDragged) {
  const SIZE before = sizeOf(rectOf(toolbar));
  input::drag(centreOf(lexilo.grip()), {500, 400});
  waitForCornerAt(toolbar, {500, 400});
  const SIZE after = sizeOf(rectOf(toolbar));
  EXPECT_EQ(after.cx, before.cx);
  EXPECT_EQ(after.cy, before.cy);
}

TEST_F(Toolbar, ComesBackAboveAllOthersWheneverItPaints) {
  const RECT rect = rectOf(toolbar);
  const OverlayWindow cover({rect.left, rect.top, rect.left + 60, rect.bottom});
  const POINT covered{rect.left + 20, rect.top + 5};
  waitFor("the toolbar to be covered", [&] { return topWindowAt(covered) == cover.window(); });
  repaint(toolbar);
  waitFor("the toolbar to be above again", [&] { return topWindowAt(covered) == toolbar; });
}

TEST_F(Toolbar, ItsMenuOpensBelowItsLeftEnd) {
  const RECT bar = rectOf(toolbar);
  const RECT menu = rectOf(lexilo.dropMenu());
  const int dpi = static_cast<int>(GetDpiForWindow(toolbar));
  EXPECT_EQ(menu.left, bar.left);
  EXPECT_EQ(menu.top, bar.top + forms::toPixels(345, dpi));
  saveScreenshot("build/shots/menu.png");
  popup_menu::dismiss(lexilo.process());
  EXPECT_TRUE(lexilo.process().running());
}

TEST_F(Toolbar, ItsMenuOpensTheQuickLookupWindow) {
  lexilo.choose(MenuItem::kQuickLookup);
  const QuickLookup window(lexilo.process());
  waitFor("the first words", [&] { return !window.words().empty(); });
}

TEST_F(Toolbar, AMenuClosedByAClickElsewhereChoosesNothing) {
  const Notepad notepad;
  notepad.place({100, 300, 600, 600});
  lexilo.dropMenu();
  input::click({300, 500});
  waitFor("the menu to close", [&] { return !popup_menu::isOpen(lexilo.process()); });
  EXPECT_EQ(QuickLookup::find(lexilo.process()), nullptr);
  EXPECT_EQ(lexilo.exit(), 0U);
}

/// Toggles capture and sees to it that the button's picture changes to and fro with it.
void expectTwoPictures(const Lexilo& lexilo, const std::function<void()>& toggle) {
  // The pointer must not rest on the button: that changes its look as well.
  const auto look = [&] {
    input::moveTo({200, 800});
    return screenPixels(rectOf(lexilo.button(ToolbarButton::kCapture)));
  };
  const auto settle = [&] {
    std::vector<COLORREF> last = look();
    waitFor("the button to come to rest", [&] {
      Sleep(50);
      return std::exchange(last, look()) == last;
    });
    return last;
  };
  toggle();
  const std::vector<COLORREF> one = settle();
  toggle();
  waitFor("another picture", [&] { return look() != one; });
  const std::vector<COLORREF> other = settle();
  EXPECT_NE(one, other);
  toggle();
  waitFor("the first picture", [&] { return look() == one; });
  toggle();
  waitFor("the second picture", [&] { return look() == other; });
}

TEST_F(Toolbar, ItsCaptureButtonTogglesItsPicture) {
  expectTwoPictures(lexilo, [&] { lexilo.click(ToolbarButton::kCapture); });
  saveScreenshot("build/shots/capture.png");
}

TEST_F(Toolbar, ItsMenuTogglesTheSamePicture) {
  expectTwoPictures(lexilo, [&] {
    lexilo.choose(MenuItem::kCapture);
    waitFor("the menu to close", [&] { return !popup_menu::isOpen(lexilo.process()); });
  });
}

TEST_F(Toolbar, DoesNotCloseByAltF4) {
  lexilo.click(ToolbarButton::kCapture);
  input::key(VK_F4, {VK_MENU});
  EXPECT_TRUE(never([&] { return !lexilo.process().running(); }, 500));
  EXPECT_TRUE(IsWindowVisible(toolbar));
}

TEST_F(Toolbar, ItsRepaintingDoesNotDisturbTypingElsewhere) {
  const Notepad notepad;
  notepad.place({100, 300, 600, 600});
  notepad.clickIntoText();
  std::wstring typed;
  for (int i = 0; i < 100; ++i) {
    const auto letter = static_cast<wchar_t>(L'a' + (i % 26));
    input::type({&letter, 1});
    typed += letter;
    repaint(toolbar);
    ASSERT_EQ(GetForegroundWindow(), notepad.window());
  }
  waitFor("all letters", [&] { return notepad.text() == typed; });
}

/// The browser that the help button starts, put aside for the time of a test.
class NoBrowser {
 public:
  NoBrowser() { std::filesystem::rename(kBrowser, kAside); }
  NoBrowser(const NoBrowser&) = delete;
  NoBrowser& operator=(const NoBrowser&) = delete;
  ~NoBrowser() {
    std::error_code ignored;
    std::filesystem::rename(kAside, kBrowser, ignored);
  }

 private:
  static constexpr const wchar_t* kBrowser = L"C:\\Program Files\\Internet Explorer\\iexplore.exe";
  static constexpr const wchar_t* kAside = L"C:\\Program Files\\Internet Explorer\\aside.exe";
};

TEST_F(Toolbar, ItsHelpButtonSaysWhenThereIsNoBrowser) {
  const NoBrowser none;
  lexilo.click(ToolbarButton::kHelp);
  const ShownMessage box = waitForMessageBox(lexilo.process());
  EXPECT_EQ(box.text, L"未找到帮助文件！");
  EXPECT_TRUE(box.criticalIcon);
  EXPECT_EQ(box.buttons.size(), 1U);
  box.answer();
  EXPECT_EQ(lexilo.exit(), 0U);
}

TEST_F(Toolbar, ItsMenuSaysWhenThereIsNoBrowserForTheHomePage) {
  const NoBrowser none;
  lexilo.choose(MenuItem::kHomePage);
  const ShownMessage box = waitForMessageBox(lexilo.process());
  EXPECT_EQ(box.title, L"");
  EXPECT_TRUE(box.criticalIcon);
  box.answer();
  EXPECT_EQ(lexilo.exit(), 0U);
}

TEST_F(Toolbar, ItsHelpButtonStartsTheBrowserWithThePageThatIsThere) {
  const auto help = AppFolder::withFullDictionary().path() / L"help" / L"help.htm";
  ASSERT_TRUE(std::filesystem::exists(help));
  lexilo.click(ToolbarButton::kHelp);
  const Browser browser;
  browser.waitForAddress(L"file://" + help.wstring());
}

}  // namespace
}  // namespace support
