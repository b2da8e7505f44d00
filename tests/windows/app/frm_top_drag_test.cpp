#include "tests/support/window/frm_top_test.h"

namespace support {
namespace {

class FrmTopDrag : public FrmTopTest {
 protected:
  static POINT corner() {
    const RECT rect = rectOf(top().handle());
    return {rect.left, rect.top};
  }
  static bool cornerAt(LONG x, LONG y) {
    return eventually([=] { return corner().x == x && corner().y == y; }, 1'000);
  }

  /// Presses at a place of the handle and holds until the timer has ticked.
  static void grip(int dx, int dy) {
    injected::moveTo({corner().x + dx, corner().y + dy});
    passTime(20);
    injected::pressLeft();
    ASSERT_TRUE(eventually([] { return top().Timer1.enabled(); }));
    passTime(60);
  }
  static void moveTo(LONG x, LONG y) {
    injected::moveTo({x, y});
    passTime(10);
  }
  static void letGo() {
    injected::releaseLeft();
    ASSERT_TRUE(eventually([] { return !top().Timer1.enabled(); }));
  }
};

TEST_F(FrmTopDrag, TheFirstTimeItsCornerJumpsToThePointer) {
  start();
  grip(5, 12);
  moveTo(400, 300);
  EXPECT_TRUE(cornerAt(400, 300));
  moveTo(500, 350);
  EXPECT_TRUE(cornerAt(500, 350));
  letGo();
  EXPECT_TRUE(cornerAt(500, 350));
}

TEST_F(FrmTopDrag, FromTheSecondTimeOnItKeepsThePointWhereItWasGripped) {
  start();
  grip(5, 12);
  moveTo(400, 300);
  letGo();
  ASSERT_TRUE(cornerAt(400, 300));
  for (const auto& [dx, dy] : {std::pair{3, 8}, {10, 20}}) {
    const POINT before = corner();
    grip(dx, dy);
    moveTo(before.x + dx + 50, before.y + dy + 60);
    EXPECT_TRUE(cornerAt(before.x + 50, before.y + 60));
    moveTo(before.x + dx + 120, before.y + dy - 30);
    EXPECT_TRUE(cornerAt(before.x + 120, before.y - 30));
    letGo();
  }
}

TEST_F(FrmTopDrag, TheGripIsWhereTheMouseMovedLastNotWhereThePointerIs) {
  start();
  grip(5, 12);
  moveTo(400, 300);
  letGo();
  ASSERT_TRUE(cornerAt(400, 300));
  moveTo(403, 308);
  // The pointer goes on without the handle hearing of it, and then the button is pressed.
  injected::moveTo(kNowhere);
  HWND handle = top().Image1.handle();
  SendMessageW(handle, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 8));
  ASSERT_TRUE(top().Timer1.enabled());
  injected::moveTo({503, 408});
  SendMessageW(handle, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(103, 108));
  EXPECT_EQ(corner().x, 500);
  EXPECT_EQ(corner().y, 400);
  SendMessageW(handle, WM_LBUTTONUP, 0, MAKELPARAM(3, 8));
  EXPECT_FALSE(top().Timer1.enabled());
}

TEST_F(FrmTopDrag, EveryButtonOfTheMouseDragsIt) {
  start();
  grip(5, 12);
  moveTo(400, 300);
  letGo();
  ASSERT_TRUE(cornerAt(400, 300));
  moveTo(403, 308);
  injected::pressRight();
  ASSERT_TRUE(eventually([] { return top().Timer1.enabled(); }));
  moveTo(453, 368);
  EXPECT_TRUE(cornerAt(450, 360));
  injected::releaseRight();
  ASSERT_TRUE(eventually([] { return !top().Timer1.enabled(); }));
  moveTo(600, 500);
  EXPECT_TRUE(cornerAt(450, 360));
}

TEST_F(FrmTopDrag, ItsSizeStays) {
  frmTop& form = start();
  const RECT before = rectOf(form.handle());
  grip(5, 12);
  moveTo(400, 300);
  letGo();
  const RECT after = rectOf(form.handle());
  EXPECT_EQ(after.right - after.left, before.right - before.left);
  EXPECT_EQ(after.bottom - after.top, before.bottom - before.top);
}

TEST_F(FrmTopDrag, WithoutThePressTheMouseMovesNothing) {
  start();
  const POINT before = corner();
  moveTo(before.x + 5, before.y + 10);
  moveTo(before.x + 9, before.y + 15);
  EXPECT_TRUE(cornerAt(before.x, before.y));
}

TEST_F(FrmTopDrag, LosingTheMouseEndsIt) {
  start();
  grip(5, 12);
  moveTo(400, 300);
  ReleaseCapture();
  ASSERT_TRUE(eventually([] { return !top().Timer1.enabled(); }));
  moveTo(600, 400);
  EXPECT_TRUE(cornerAt(400, 300));
  injected::releaseLeft();
  passTime(30);
}

}  // namespace
}  // namespace support
