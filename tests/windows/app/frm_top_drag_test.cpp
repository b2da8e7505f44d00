#include <limits>

#include "tests/support/window/frm_top_test.h"
#include "tests/support/window/scoped_import.h"

extern "C" decltype(&GetCursorPos) __imp_GetCursorPos;
extern "C" decltype(&MoveWindow) __imp_MoveWindow;

namespace support {
namespace {

constexpr LONG kLeast = std::numeric_limits<LONG>::min();
constexpr LONG kMost = std::numeric_limits<LONG>::max();

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

  /// Starts the toolbar and drags it to a place, as the first drag does; later ones are armed then.
  void startDraggedTo(LONG x, LONG y) {
    start();
    grip(5, 12);
    moveTo(x, y);
    letGo();
    ASSERT_TRUE(cornerAt(x, y));
  }

  /// Drags it by a place of its handle, which the pointer is to stay on.
  static void expectDraggedBy(int dx, int dy) {
    const POINT before = corner();
    grip(dx, dy);
    moveTo(before.x + dx + 50, before.y + dy + 60);
    EXPECT_TRUE(cornerAt(before.x + 50, before.y + 60));
    moveTo(before.x + dx + 120, before.y + dy - 30);
    EXPECT_TRUE(cornerAt(before.x + 120, before.y - 30));
    letGo();
  }

  /// What the handle hears of a button that is pressed, and let go of, wherever the pointer is.
  static void sendPress() { SendMessageW(top().Image1.handle(), WM_LBUTTONDOWN, MK_LBUTTON, 0); }
  static void sendRelease() { SendMessageW(top().Image1.handle(), WM_LBUTTONUP, 0, 0); }

  /// Has the handle hear of a move when the system's pointer is at `place`, which may lie far
  /// beyond the screen. Whoever asks for the pointer after the handle is told another place.
  static void sendMoveTo(POINT place) {
    pointer() = place;
    const ScopedImport<decltype(&GetCursorPos)> import(__imp_GetCursorPos, [](POINT* told) -> BOOL {
      *told = std::exchange(pointer(), kNowhere);
      return TRUE;
    });
    SendMessageW(top().Image1.handle(), WM_MOUSEMOVE, MK_LBUTTON, 0);
  }

  /// What an error that no handler traps leads to.
  void expectUncaughtError() {
    const auto seen = boxes.take();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_FALSE(seen[0].text.empty());
    EXPECT_EQ(seen[0].icon, Icon::kError);
    EXPECT_EQ(seen[0].title, u"");
  }

 private:
  static POINT& pointer() {
    static POINT place{};
    return place;
  }
};

TEST_F(FrmTopDrag, GripsItWhereItCameBackToWhenItsMonitorWasTakenAway) {
  startDraggedTo(400, 300);
  SetWindowPos(top().handle(), nullptr, -5000, 400, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  SendMessageW(top().handle(), WM_DISPLAYCHANGE, 32, MAKELPARAM(1280, 1024));
  ASSERT_TRUE(cornerAt(0, 400));
  expectDraggedBy(5, 12);
}

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
  startDraggedTo(400, 300);
  expectDraggedBy(3, 8);
  expectDraggedBy(10, 20);
}

TEST_F(FrmTopDrag, TheGripIsWhereTheMouseMovedLastNotWhereThePointerIs) {
  startDraggedTo(400, 300);
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
  startDraggedTo(400, 300);
  for (const auto& [press, release] : {std::pair{&injected::pressRight, &injected::releaseRight},
                                       {&injected::pressMiddle, &injected::releaseMiddle}}) {
    const POINT before = corner();
    moveTo(before.x + 3, before.y + 8);
    press();
    ASSERT_TRUE(eventually([] { return top().Timer1.enabled(); }));
    moveTo(before.x + 53, before.y + 68);
    EXPECT_TRUE(cornerAt(before.x + 50, before.y + 60));
    release();
    ASSERT_TRUE(eventually([] { return !top().Timer1.enabled(); }));
    moveTo(800, 700);
    EXPECT_TRUE(cornerAt(before.x + 50, before.y + 60));
  }
}

TEST_F(FrmTopDrag, PlacesBeyond16BitsAreReckonedWith) {
  start();
  static RECT moved{};  // left, top, width and height that the window was given
  {
    const ScopedImport<decltype(&MoveWindow)> import(
        __imp_MoveWindow, [](HWND, int x, int y, int width, int height, BOOL) -> BOOL {
          moved = {x, y, width, height};
          return TRUE;
        });
    const SIZE size = sizeOf(rectOf(top().handle()));
    sendPress();
    sendMoveTo({70'000, -40'000});
    EXPECT_EQ(moved.left, 70'000);
    EXPECT_EQ(moved.top, -40'000);
    EXPECT_EQ(moved.right, size.cx);
    EXPECT_EQ(moved.bottom, size.cy);
    sendRelease();
  }
  unloadAll();
  startDraggedTo(400, 300);
  sendMoveTo({70'000, -40'000});
  sendPress();
  sendMoveTo({70'010, -39'980});
  EXPECT_TRUE(cornerAt(410, 320));
  sendRelease();
}

TEST_F(FrmTopDrag, AGripBeyond32BitsIsAnUncaughtErrorAndDragsNothing) {
  for (const POINT beyond : {POINT{kLeast, 308}, {403, kLeast}}) {
    startDraggedTo(400, 300);
    sendMoveTo(beyond);
    EXPECT_EQ(boxes.count(), 0U);
    sendPress();
    ASSERT_NO_FATAL_FAILURE(expectUncaughtError());
    EXPECT_TRUE(top().Timer1.enabled());
    sendMoveTo({600, 500});
    EXPECT_TRUE(cornerAt(400, 300));
    sendRelease();
    EXPECT_FALSE(top().Timer1.enabled());
    // While the box was up the timer may have taken the arming back; the next drag arms again.
    grip(5, 12);
    moveTo(450, 350);
    letGo();
    expectDraggedBy(3, 8);
    unloadAll();
  }
}

TEST_F(FrmTopDrag, APlaceBeyond32BitsIsAnUncaughtErrorAndTheWindowStays) {
  startDraggedTo(400, 300);
  for (const auto& [from, to] : {std::pair{POINT{kMost, 308}, POINT{kLeast, 308}},
                                 {POINT{403, kMost}, POINT{403, kLeast}}}) {
    sendMoveTo(from);
    sendPress();
    EXPECT_EQ(boxes.count(), 0U);
    sendMoveTo(to);
    ASSERT_NO_FATAL_FAILURE(expectUncaughtError());
    EXPECT_TRUE(cornerAt(400, 300));
    sendRelease();
    EXPECT_FALSE(top().Timer1.enabled());
  }
  expectDraggedBy(3, 8);
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
