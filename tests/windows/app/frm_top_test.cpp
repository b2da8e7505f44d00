#include "tests/support/window/frm_top_test.h"
#include "app/commands.h"
#include "app/frm_about.h"
#include "lookup/frm_sub.h"
#include "tests/support/window/other_program.h"
#include "tests/support/window/started_browser.h"
#include "win32/program.h"

namespace support {
namespace {

class FrmTop : public FrmTopTest {};

TEST_F(FrmTop, SaysWhatItsButtonsDo) {
  frmTop& form = start();
  EXPECT_EQ(form.cmdMain.toolTip(), u"快速查询");
  EXPECT_EQ(form.cmdSub.toolTip(), u"多功能查询");
  EXPECT_EQ(form.cmdDictSetting.toolTip(), u"查询设置");
  EXPECT_EQ(form.cmdMouse.toolTip(), u"允许鼠标取词");
  EXPECT_EQ(form.cmdHelp.toolTip(), u"帮助");
  EXPECT_EQ(form.Command1.toolTip(), u"菜单");
}

TEST_F(FrmTop, ScreenReadersReadWhatItsButtonsSay) {
  frmTop& form = start();
  for (const forms::Button* button : {&form.cmdMain, &form.cmdSub, &form.cmdDictSetting,
                                      &form.cmdMouse, &form.cmdHelp, &form.Command1}) {
    EXPECT_FALSE(button->toolTip().empty());
    EXPECT_EQ(forms::windowText(button->handle()), button->toolTip());
  }
  for (const char16_t* state : {u"禁止鼠标取词", u"允许鼠标取词"}) {
    click(form.cmdMouse);
    EXPECT_TRUE(eventually([&] { return forms::windowText(form.cmdMouse.handle()) == state; }));
  }
}

TEST_F(FrmTop, EveryButtonHasAPictureAndTheTwoThatHoldOneAreHidden) {
  frmTop& form = start();
  const std::initializer_list<const forms::Button*> shown{&form.cmdMain,        &form.cmdSub,
                                                          &form.cmdDictSetting, &form.cmdMouse,
                                                          &form.cmdHelp,        &form.Command1};
  for (const forms::Button* button : shown) {
    EXPECT_TRUE(IsWindowVisible(button->handle()));
    EXPECT_NE(SendMessageW(button->handle(), BM_GETIMAGE, IMAGE_ICON, 0), 0);
    EXPECT_LE(pixelBox(*button).bottom, 25);
    EXPECT_LE(pixelBox(*button).right, forms::toPixels(form.width(), 96));
  }
  EXPECT_FALSE(IsWindowVisible(form.cmdMouseYes.handle()));
  EXPECT_FALSE(IsWindowVisible(form.cmdMouseNot.handle()));
  EXPECT_NE(form.cmdMouseYes.picture(), form.cmdMouseNot.picture());
}

TEST_F(FrmTop, TheFirstButtonOpensTheQuickLookupWindow) {
  start();
  injected::click(centreOf(top().cmdMain));
  ASSERT_TRUE(eventually([] { return forms::isLoaded<frmSub>(); }));
  awaitActive(forms::form<frmSub>());
  EXPECT_TRUE(IsWindowVisible(top().handle()));
}

TEST_F(FrmTop, StaysAboveOtherWindowsWithEveryPaintAndTakesNoFocus) {
  frmTop& form = start();
  OtherProgram other;
  other.activate();
  other.raiseAboveAll();
  ASSERT_TRUE(isAbove(other.window(), form.handle()));
  RedrawWindow(form.handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
  EXPECT_TRUE(eventually([&] { return isAbove(form.handle(), other.window()); }));
  EXPECT_TRUE(always([&] { return other.isForeground(); }, 60));
}

TEST_F(FrmTop, ComesAboveOtherTopmostWindowsWhenAWindowOfOursIsActivated) {
  frmTop& form = start();
  auto& about = forms::form<frmAbout>();
  about.show();
  awaitActive(about);
  OtherProgram other;
  other.activate();
  other.raiseAboveAll();
  ASSERT_TRUE(isAbove(other.window(), form.handle()));
  // As a click does. Nothing of the toolbar is painted by this, and the activated window keeps the
  // focus.
  SetForegroundWindow(about.handle());
  EXPECT_TRUE(eventually([&] { return isAbove(form.handle(), other.window()); }));
  EXPECT_TRUE(always([&] { return GetForegroundWindow() == about.handle(); }, 60));
}

TEST_F(FrmTop, IgnoresAltF4AndHasNoCloseBox) {
  frmTop& form = start();
  const HWND window = form.handle();
  input::key(VK_F4, {VK_MENU});
  SendMessageW(window, WM_CLOSE, 0, 0);
  EXPECT_TRUE(always([&] { return IsWindow(window) && forms::isLoaded<frmTop>(); }, 80));
  EXPECT_EQ(GetWindowLongPtrW(window, GWL_STYLE) & (WS_SYSMENU | WS_CAPTION), 0);
}

TEST_F(FrmTop, UnloadingItUnloadsNothingElse) {
  start();
  forms::form<frmSub>().show();
  top().unload();
  forms::doEvents();
  EXPECT_FALSE(forms::isLoaded<frmTop>());
  EXPECT_TRUE(forms::isLoaded<frmSub>());
  EXPECT_TRUE(forms::isLoaded<frmScreenWord>());
  EXPECT_TRUE(IsWindowVisible(forms::form<frmSub>().handle()));
}

TEST_F(FrmTop, HelpWithoutABrowserIsTold) {
  start();
  user::BrowserPath = u"C:\\no such folder\\IEXPLORE.EXE";
  click(top().cmdHelp);
  ASSERT_TRUE(eventually([this] { return boxes.count() == 1; }));
  const auto seen = boxes.take();
  EXPECT_EQ(seen[0].text, u"未找到帮助文件！");
  EXPECT_EQ(seen[0].icon, Icon::kError);
  EXPECT_EQ(seen[0].title, u"");
}

TEST_F(FrmTop, HelpStartsTheBrowserWithThePage) {
  start();
  useAsBrowser();
  click(top().cmdHelp);
  const StartedBrowser browser = waitForBrowser();
  EXPECT_EQ(browser.program, user::BrowserPath) << "another program was started";
  EXPECT_EQ(browser.name, user::BrowserPath);
  EXPECT_EQ(browser.page, win32::applicationFolder() + u"\\help\\help.htm");
  EXPECT_EQ(browser.show, SW_SHOWNORMAL);
}

TEST_F(FrmTop, APageWhosePathHasBlanksReachesTheBrowserAsItStands) {
  useAsBrowser();
  const std::u16string page = u"C:\\My Programs\\Lexilo 1.3\\help\\help.htm";
  app::openInBrowser(page);
  const StartedBrowser browser = waitForBrowser();
  EXPECT_EQ(browser.program, user::BrowserPath);
  EXPECT_EQ(browser.name, user::BrowserPath);
  EXPECT_EQ(browser.page, page);
}

TEST_F(FrmTop, TheMenuDropsDownJustBelowTheButtons) {
  start();
  POINT corner{};
  withMenu([&](HWND window) {
    const RECT rect = rectOf(window);
    corner = {rect.left, rect.top};
    input::key(VK_ESCAPE);
  });
  EXPECT_EQ(corner.x, rectOf(top().handle()).left);
  EXPECT_EQ(corner.y, rectOf(top().handle()).top + forms::toPixels(345, 96));
}

TEST_F(FrmTop, TypingElsewhereIsNotDisturbedByAHundredRepaintsOfOurWindows) {
  start();
  forms::form<frmSub>().show();
  awaitActive(forms::form<frmSub>());
  OtherProgram other;
  other.activate();
  std::u16string expected;
  for (int i = 0; i < 100; ++i) {
    input::type(i % 2 == 0 ? L"x" : L"词");
    expected += i % 2 == 0 ? u'x' : u'词';
    for (HWND window : {top().handle(), forms::form<frmSub>().handle()}) {
      RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    forms::doEvents();
  }
  EXPECT_TRUE(eventually([&] { return other.text() == expected; }));
  EXPECT_TRUE(other.isForeground());
}

}  // namespace
}  // namespace support
