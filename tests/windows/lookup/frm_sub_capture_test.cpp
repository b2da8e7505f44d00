#include "app/frm_top.h"
#include "capture/screen_word.h"
#include "tests/support/window/frm_sub_test.h"
#include "tests/support/window/other_program.h"

namespace support {
namespace {

class FrmSubCapture : public FrmSubTest {
 protected:
  static bool runs() {
    return eventually([] { return captureRuns(); });
  }
  static bool rests() {
    return eventually([] { return !captureRuns(); });
  }

  /// Starts the toolbar and switches capture off by its button, which shows that from then on.
  static frmTop& switchOffByTheToolbar() {
    auto& top = forms::form<frmTop>();
    awaitActive(top);
    EXPECT_TRUE(eventually([] { return user::IdxWords.size() > 1; }));
    SendMessageW(top.cmdMouse.handle(), BM_CLICK, 0, 0);
    EXPECT_EQ(top.cmdMouse.picture(), top.cmdMouseNot.picture());
    EXPECT_FALSE(captureRuns());
    return top;
  }
};

TEST_F(FrmSubCapture, RestsWhileTheBoxHasTheFocus) {
  ScreenWord::StartCapture();
  open();
  EXPECT_TRUE(rests());
  injected::click(entryPoint(2));
  EXPECT_TRUE(runs());
  injected::click(centreOf(sub().txtInput));
  EXPECT_TRUE(rests());
  input::key(VK_TAB);
  EXPECT_TRUE(runs());
}

TEST_F(FrmSubCapture, RunsAgainWhenAnotherProgramTakesTheFocus) {
  OtherProgram other;
  open();
  ASSERT_TRUE(rests());
  other.activate();
  EXPECT_TRUE(runs());
  SetForegroundWindow(sub().handle());
  EXPECT_TRUE(rests());
}

TEST_F(FrmSubCapture, RunsWhenTheBoxLosesTheFocusThoughTheToolbarShowsItOff) {
  const frmTop& top = switchOffByTheToolbar();
  open();
  ASSERT_TRUE(rests());
  ScreenWord::StopCapture();
  input::key(VK_TAB);
  EXPECT_TRUE(runs());
  EXPECT_EQ(top.cmdMouse.picture(), top.cmdMouseNot.picture());
}

TEST_F(FrmSubCapture, RunsOnceTheWindowIsClosedThoughTheToolbarShowsItOff) {
  const frmTop& top = switchOffByTheToolbar();
  open();
  // The focus is not in the box: only the closing can start it.
  sub().TreeView1.setFocus();
  ASSERT_TRUE(runs());
  ScreenWord::StopCapture();
  ASSERT_FALSE(captureRuns());
  sub().unload();
  EXPECT_TRUE(captureRuns());
  EXPECT_EQ(top.cmdMouse.picture(), top.cmdMouseNot.picture());
}

TEST_F(FrmSubCapture, RunsOnceTheWindowIsClosed) {
  open();
  ASSERT_TRUE(rests());
  injected::click(centreOf(sub().cmdExit));
  ASSERT_TRUE(eventually([] { return !forms::isLoaded<frmSub>(); }));
  EXPECT_TRUE(captureRuns());
}

TEST_F(FrmSubCapture, RunsAtOnceWhenTheWindowIsClosedWithTheFocusInTheBox) {
  open();
  ASSERT_TRUE(rests());
  sub().unload();
  EXPECT_TRUE(captureRuns());
}

TEST_F(FrmSubCapture, RunsOnceTheCloseBoxHasClosedTheWindow) {
  open();
  ASSERT_TRUE(rests());
  PostMessageW(sub().handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
  ASSERT_TRUE(eventually([] { return !forms::isLoaded<frmSub>(); }));
  EXPECT_TRUE(captureRuns());
}

TEST_F(FrmSubCapture, RunsOnceAltF4HasClosedTheWindow) {
  open();
  ASSERT_TRUE(rests());
  input::key(VK_F4, {VK_MENU});
  ASSERT_TRUE(eventually([] { return !forms::isLoaded<frmSub>(); }));
  EXPECT_TRUE(captureRuns());
}

TEST_F(FrmSubCapture, AMessageBoxDoesNotWakeIt) {
  frmSub& form = open();
  ASSERT_TRUE(rests());
  form.Adodc1.setConnectionString(u"Provider=x;Data Source=C:\\no such folder\\kk.dat;");
  bool restedMeanwhile = false;
  boxes.whileUp([&](HWND) { restedMeanwhile = always([] { return !captureRuns(); }, 60); });
  std::u16string word = u"data";
  form.showMeaning(word, form.Adodc1);
  EXPECT_EQ(boxes.take().size(), 1U);
  EXPECT_TRUE(restedMeanwhile);
  EXPECT_TRUE(rests());
}

TEST_F(FrmSubCapture, TheToolbarThatLosesTheFocusToTheBoxDoesNotWakeIt) {
  auto& top = forms::form<frmTop>();
  awaitActive(top);
  ASSERT_TRUE(eventually([] { return user::IdxWords.size() > 1; }));
  open();
  EXPECT_TRUE(rests());
  EXPECT_TRUE(always([] { return !captureRuns(); }, 60));
}

}  // namespace
}  // namespace support
