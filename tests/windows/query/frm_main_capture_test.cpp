#include "query/frm_spc.h"
#include "tests/support/window/other_program.h"
#include "tests/support/window/query_test.h"

namespace support {
namespace {

class FrmMainCapture : public QueryTest {};

TEST_F(FrmMainCapture, RestsWhileTheBoxHasTheFocus) {
  ScreenWord::StartCapture();
  open();
  EXPECT_TRUE(rests());
  form().TreeView1.setFocus();
  EXPECT_TRUE(runs());
  form().txtInput.setFocus();
  EXPECT_TRUE(rests());
  input::key(VK_TAB);
  EXPECT_TRUE(runs());
}

TEST_F(FrmMainCapture, RunsAgainWhateverTheToolbarShows) {
  open();
  ScreenWord::StopCapture();
  input::key(VK_TAB);
  EXPECT_TRUE(runs());
}

TEST_F(FrmMainCapture, RunsWhileAnotherProgramHasTheFocus) {
  OtherProgram other;
  open();
  ASSERT_TRUE(rests());
  other.activate();
  EXPECT_TRUE(runs());
}

TEST_F(FrmMainCapture, RunsOnceTheWindowIsClosedWithTheFocusInItsBox) {
  open();
  ASSERT_TRUE(rests());
  SendMessageW(form().handle(), WM_CLOSE, 0, 0);
  ASSERT_FALSE(forms::isLoaded<frmMain>());
  EXPECT_TRUE(captureRuns());
}

TEST_F(FrmMainCapture, ClosingWithTheFocusElsewhereLeavesItAsItIs) {
  open();
  form().TreeView1.setFocus();
  ASSERT_TRUE(runs());
  ScreenWord::StopCapture();
  SendMessageW(form().handle(), WM_CLOSE, 0, 0);
  EXPECT_FALSE(captureRuns());
}

TEST_F(FrmMainCapture, AMessageDoesNotWakeIt) {
  open();
  ASSERT_TRUE(rests());
  bool restedMeanwhile = false;
  boxes.whileUp([&](HWND) { restedMeanwhile = always([] { return !captureRuns(); }, 60); });
  form().txtInput.setFocus();
  input::key(VK_RETURN);
  expectBox(u"查询条件不为空！", Icon::kWarning);
  EXPECT_TRUE(restedMeanwhile);
  EXPECT_TRUE(rests());
}

TEST_F(FrmMainCapture, RestsInTheSpecialSearchAndFollowsTheBoxAfterwards) {
  open();
  form().cmdSpc.setFocus();
  ASSERT_TRUE(runs());
  press(form().cmdSpc);
  awaitActive(forms::form<frmSpc>());
  EXPECT_TRUE(rests());
  input::key(VK_ESCAPE);
  ASSERT_TRUE(eventually([] { return !forms::isLoaded<frmSpc>(); }));
  awaitActive(form());
  EXPECT_TRUE(runs());
}

}  // namespace
}  // namespace support
