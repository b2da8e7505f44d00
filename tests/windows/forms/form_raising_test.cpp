#include "tests/support/window/other_program.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

constexpr UINT kRaise = SWP_NOMOVE | SWP_NOSIZE;

class FormRaising : public WindowTest {
 protected:
  /// Whether the other program keeps the foreground and its text box the focus.
  bool otherKeepsTheFocus() {
    return always([this] { return other.isForeground() && GetActiveWindow() == nullptr; }, 60);
  }

  OtherProgram other;
};

TEST_F(FormRaising, ATopmostFormNeverTakesTheFocusByIt) {
  plan<'A'>().design.topmost = true;
  auto& form = opened<FormA>();
  other.activate();
  form.bringToTop();
  EXPECT_TRUE(otherKeepsTheFocus());
  SetWindowPos(form.handle(), HWND_TOPMOST, 0, 0, 0, 0, kRaise);
  EXPECT_TRUE(otherKeepsTheFocus());
  SetWindowPos(form.handle(), HWND_TOPMOST, 0, 0, 0, 0, kRaise | SWP_SHOWWINDOW);
  EXPECT_TRUE(otherKeepsTheFocus());
  EXPECT_TRUE(isTopmost(form.handle()));
}

TEST_F(FormRaising, MovesAndSizesNothing) {
  plan<'A'>().design.topmost = true;
  auto& form = opened<FormA>();
  form.setPosition(3000, 3000);
  const RECT before = rectOf(form.handle());
  form.bringToTop();
  const RECT after = rectOf(form.handle());
  EXPECT_TRUE(EqualRect(&before, &after));
}

TEST_F(FormRaising, ANeverActiveFormTakesNoFocusWhenShown) {
  plan<'A'>().design.neverActive = true;
  plan<'A'>().design.frame = forms::Frame::kBorderless;
  other.activate();
  auto& form = forms::form<FormA>();
  form.show();
  EXPECT_TRUE(IsWindowVisible(form.handle()));
  EXPECT_TRUE(otherKeepsTheFocus());
  SetWindowPos(form.handle(), HWND_TOPMOST, 10, 10, 80, 5, SWP_SHOWWINDOW);
  EXPECT_TRUE(otherKeepsTheFocus());
  EXPECT_TRUE(isTopmost(form.handle()));
}

TEST_F(FormRaising, ANeverActiveFormTakesNoFocusWhenClicked) {
  plan<'A'>().design.neverActive = true;
  plan<'A'>().design.frame = forms::Frame::kBorderless;
  other.activate();
  auto& form = forms::form<FormA>();
  form.setPosition(6000, 1500);
  form.show();
  injected::click(centreOf(rectOf(form.handle())));
  EXPECT_TRUE(otherKeepsTheFocus());
  EXPECT_EQ(SendMessageW(form.handle(), WM_MOUSEACTIVATE, 0, 0), MA_NOACTIVATEANDEAT);
}

TEST_F(FormRaising, ANeverActiveFormTakesNoFocusWhenAControlOfItsIsClicked) {
  auto& active = opened<FormB>();
  active.first.setFocus();
  plan<'A'>().design.neverActive = true;
  plan<'A'>().design.frame = forms::Frame::kBorderless;
  auto& form = forms::form<FormA>();
  form.setPosition(9000, 9000);
  form.show();
  forms::doEvents();
  injected::click(centreOf(form.second));
  EXPECT_TRUE(always([&] { return GetFocus() == active.first.handle(); }, 100));
}

TEST_F(FormRaising, ANeverActiveFormHasNoTaskbarButton) {
  plan<'A'>().design.neverActive = true;
  HWND window = forms::form<FormA>().handle();
  EXPECT_TRUE(isToolWindow(window));
  EXPECT_TRUE(refusesActivation(window));
}

TEST_F(FormRaising, AFormWithoutTaskbarButtonIsAToolWindowThatTakesTheFocus) {
  plan<'A'>().design.taskbarButton = false;
  auto& form = opened<FormA>();
  EXPECT_TRUE(isToolWindow(form.handle()));
  EXPECT_FALSE(refusesActivation(form.handle()));
}

TEST_F(FormRaising, TypingIsNotDisturbedByAHundredRepaints) {
  plan<'A'>().design.topmost = true;
  plan<'A'>().paint = [] { forms::form<FormA>().bringToTop(); };
  auto& form = opened<FormA>();
  other.activate();
  for (int i = 0; i < 100; ++i) {
    input::type(i % 2 == 0 ? L"a" : L"b");
    InvalidateRect(form.handle(), nullptr, TRUE);
    UpdateWindow(form.handle());
    forms::doEvents();
  }
  std::u16string expected;
  for (int i = 0; i < 50; ++i) expected += u"ab";
  EXPECT_TRUE(eventually([&] { return other.text() == expected; }));
  EXPECT_TRUE(other.isForeground());
}

}  // namespace
}  // namespace support
