#include "capture/screen_word.h"
#include "tests/support/window/frm_top_test.h"
#include "tests/support/window/other_program.h"

namespace support {
namespace {

class FrmTopCapture : public FrmTopTest {};

TEST_F(FrmTopCapture, AClickSwitchesItOffAndTheNextOnAgain) {
  start();
  click(top().cmdMouse);
  expectCaptureShown(false);
  EXPECT_FALSE(captureRuns());
  click(top().cmdMouse);
  expectCaptureShown(true);
  EXPECT_TRUE(captureRuns());
}

TEST_F(FrmTopCapture, TheButtonItselfIsTheState) {
  start();
  top().cmdMouse.setPicture(top().cmdMouseNot.picture());
  top().cmdMouse_Click();
  expectCaptureShown(true);
}

TEST_F(FrmTopCapture, LosingTheFocusStartsItWhileThePictureStaysOff) {
  start();
  click(top().cmdMouse);
  ASSERT_FALSE(captureRuns());
  OtherProgram other;
  other.activate();
  EXPECT_TRUE(eventually([] { return captureRuns(); }));
  expectCaptureShown(false);
  EXPECT_FALSE(top().Timer1.enabled());
}

TEST_F(FrmTopCapture, MovingAmongTheButtonsIsNoLossOfFocus) {
  start();
  click(top().cmdMouse);
  input::key(VK_TAB);
  input::key(VK_TAB);
  EXPECT_TRUE(always([] { return !captureRuns(); }, 60));
}

TEST_F(FrmTopCapture, LosingTheFocusStopsTheDragTimer) {
  start();
  top().Timer1.setEnabled(true);
  OtherProgram other;
  other.activate();
  EXPECT_TRUE(eventually([] { return !top().Timer1.enabled(); }));
}

TEST_F(FrmTopCapture, TheSwitchesLoadTheHostAndMayBeRepeated) {
  start();
  host().unload();
  forms::doEvents();
  ASSERT_FALSE(forms::isLoaded<frmScreenWord>());
  click(top().cmdMouse);
  EXPECT_TRUE(forms::isLoaded<frmScreenWord>());
  EXPECT_FALSE(captureRuns());
  ScreenWord::StopCapture();
  EXPECT_FALSE(captureRuns());
  ScreenWord::StartCapture();
  ScreenWord::StartCapture();
  EXPECT_TRUE(captureRuns());
}

}  // namespace
}  // namespace support
