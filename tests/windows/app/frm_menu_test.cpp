#include "app/frm_about.h"
#include "capture/screen_word.h"
#include "lookup/frm_sub.h"
#include "tests/support/window/frm_top_test.h"
#include "tests/support/window/started_browser.h"
#include "win32/program.h"

namespace support {
namespace {

// Numbers of the items without the separators, as the Down key counts them.
constexpr int kQuickLookup = 2;
constexpr int kMouse = 3;
constexpr int kHelp = 5;
constexpr int kWebSite = 7;

class FrmMenu : public FrmTopTest {};

TEST_F(FrmMenu, ShowsItsItemsInOrder) {
  start();
  std::vector<MenuLine> lines;
  withMenu([&](HWND window) {
    lines = linesOf(window);
    input::key(VK_ESCAPE);
  });
  EXPECT_EQ(lines, (std::vector<MenuLine>{{u"多功能查询"},
                                          {u"快速查询"},
                                          {u"鼠标取词", true, true},
                                          {u"-"},
                                          {u"字典设置"},
                                          {u"-"},
                                          {u"帮助"},
                                          {u"关于"},
                                          {u"访问我们的网站"},
                                          {u"-"},
                                          {u"退出"}}));
}

TEST_F(FrmMenu, HasItsCaption) {
  start();
  EXPECT_EQ(menu().mnu_file.caption(), u"file");
}

TEST_F(FrmMenu, IsNeverShownItself) {
  start();
  bool shown = true;
  withMenu([&](HWND) {
    shown = IsWindowVisible(menu().handle()) != FALSE;
    input::key(VK_ESCAPE);
  });
  EXPECT_FALSE(shown);
  EXPECT_FALSE(IsWindowVisible(menu().handle()));
}

TEST_F(FrmMenu, StaysAboveAWindowThatIsPainted) {
  start();
  frmSub& other = forms::form<frmSub>();
  other.show();
  awaitActive(other);
  const RECT toolbar = rectOf(top().handle());
  SetWindowPos(other.handle(), nullptr, toolbar.left, toolbar.bottom, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  forms::doEvents();
  bool above = false;
  withMenu([&](HWND window) {
    // Where Windows puts a menu when it opens; not every system does so.
    SetWindowPos(window, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    RedrawWindow(other.handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    above = isAbove(window, other.handle());
    input::key(VK_ESCAPE);
  });
  EXPECT_TRUE(above);
  // Nor does it cover the toolbar afterwards.
  other.bringToTop();
  EXPECT_TRUE(isAbove(top().handle(), other.handle()));
}

TEST_F(FrmMenu, CaptureRestsWhileItIsOpenAndRunsAfterwards) {
  start();
  bool rested = false;
  withMenu([&](HWND) {
    rested = !captureRuns();
    input::key(VK_ESCAPE);
  });
  EXPECT_TRUE(rested);
  EXPECT_TRUE(captureRuns());
}

TEST_F(FrmMenu, CaptureRestsAndRunsAsWellWhenTheKeysOpenIt) {
  start();
  for (const WORD key : std::initializer_list<WORD>{VK_SPACE, VK_RETURN}) {
    SCOPED_TRACE(key);
    top().Command1.setFocus();
    ASSERT_TRUE(eventually([] { return captureRuns(); }));
    bool rested = false;
    const ModalPoller user([&] {
      if (openMenu() == nullptr) return false;
      rested = !captureRuns();
      input::key(VK_ESCAPE);
      return true;
    });
    input::key(key);
    EXPECT_TRUE(eventually([&] { return user.done() && openMenu() == nullptr; }));
    EXPECT_TRUE(rested);
    EXPECT_TRUE(eventually([] { return captureRuns(); }));
  }
}

TEST_F(FrmMenu, CaptureRunsAfterwardsEvenIfItWasSwitchedOff) {
  start();
  click(top().cmdMouse);
  ASSERT_FALSE(captureRuns());
  withMenu([](HWND) { input::key(VK_ESCAPE); });
  EXPECT_TRUE(captureRuns());
  expectCaptureShown(false);
}

TEST_F(FrmMenu, AClickElsewhereClosesItLikeEsc) {
  start();
  // Capture is off before: it is the click that starts it.
  click(top().cmdMouse);
  ASSERT_FALSE(captureRuns());
  bool rested = false;
  withMenu([&](HWND) {
    rested = !captureRuns();
    injected::click(kNowhere);
  });
  EXPECT_TRUE(rested);
  EXPECT_TRUE(eventually([] { return captureRuns(); }));
  expectCaptureShown(false);
}

TEST_F(FrmMenu, TheButtonThatOpenedItClosesIt) {
  start();
  withMenu([](HWND) { injected::click(centreOf(top().Command1)); });
  EXPECT_TRUE(always([] { return openMenu() == nullptr; }, 100));
  EXPECT_TRUE(captureRuns());
  // And opens it again.
  bool opened = false;
  withMenu([&](HWND) {
    opened = true;
    input::key(VK_ESCAPE);
  });
  EXPECT_TRUE(opened);
}

TEST_F(FrmMenu, ChoosingTheMouseSwitchesCaptureOff) {
  start();
  chooseFromMenu(kMouse);
  expectCaptureShown(false);
  // The loss of the menu's focus starts it before the command stops it.
  EXPECT_FALSE(captureRuns());
}

TEST_F(FrmMenu, ChoosingTheMouseTwiceRestoresAll) {
  start();
  chooseFromMenu(kMouse);
  chooseFromMenu(kMouse);
  expectCaptureShown(true);
  EXPECT_TRUE(captureRuns());
}

TEST_F(FrmMenu, ShowsTheCheckMarkAsItIs) {
  start();
  click(top().cmdMouse);
  bool checked = true;
  withMenu([&](HWND window) {
    checked = linesOf(window)[2].checked;
    input::key(VK_ESCAPE);
  });
  EXPECT_FALSE(checked);
}

TEST_F(FrmMenu, QuickLookupOpensItsWindowAndChangesNoSharedFlag) {
  start();
  chooseFromMenu(kQuickLookup);
  ASSERT_TRUE(forms::isLoaded<frmSub>());
  awaitActive(forms::form<frmSub>());
  EXPECT_FALSE(user::MainOpen);
}

TEST_F(FrmMenu, HelpIsTheToolbars) {
  start();
  useAsBrowser();
  chooseFromMenu(kHelp);
  const StartedBrowser browser = waitForBrowser();
  EXPECT_EQ(browser.program, user::BrowserPath) << "another program was started";
  EXPECT_EQ(browser.name, user::BrowserPath);
  EXPECT_EQ(browser.page, win32::applicationFolder() + u"\\help\\help.htm");
  EXPECT_EQ(browser.show, SW_SHOWNORMAL);
}

TEST_F(FrmMenu, HelpWithoutABrowserIsTold) {
  start();
  user::BrowserPath = u"C:\\no such folder\\IEXPLORE.EXE";
  chooseFromMenu(kHelp);
  ASSERT_TRUE(eventually([this] { return boxes.count() == 1; }));
  const auto seen = boxes.take();
  EXPECT_EQ(seen[0].text, u"未找到帮助文件！");
  EXPECT_EQ(seen[0].icon, Icon::kError);
}

TEST_F(FrmMenu, TheWebSiteStartsTheBrowserWithItsAddress) {
  start();
  useAsBrowser();
  chooseFromMenu(kWebSite);
  const StartedBrowser browser = waitForBrowser();
  EXPECT_EQ(browser.program, user::BrowserPath) << "another program was started";
  EXPECT_EQ(browser.name, user::BrowserPath);
  EXPECT_EQ(browser.page, app::kHomePageAddress);
  EXPECT_EQ(browser.show, SW_SHOWNORMAL);
}

TEST_F(FrmMenu, TheWebSiteWithoutABrowserIsAnUncaughtError) {
  start();
  user::BrowserPath = u"C:\\no such folder\\IEXPLORE.EXE";
  chooseFromMenu(kWebSite);
  ASSERT_TRUE(eventually([this] { return boxes.count() == 1; }));
  const auto seen = boxes.take();
  EXPECT_EQ(seen[0].icon, Icon::kError);
  EXPECT_EQ(seen[0].title, u"");
  EXPECT_FALSE(seen[0].text.empty());
  EXPECT_NE(seen[0].text, u"未找到帮助文件！");
  // The program goes on.
  awaitActive(top());
  chooseFromMenu(kMouse);
  expectCaptureShown(false);
}

}  // namespace
}  // namespace support
