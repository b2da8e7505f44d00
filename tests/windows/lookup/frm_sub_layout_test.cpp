#include "tests/support/window/frm_sub_test.h"
#include "tests/support/window/other_program.h"

namespace support {
namespace {

class FrmSubLayout : public FrmSubTest {
 protected:
  static void expectBox(const forms::Widget& widget, forms::WidgetBox expected) {
    EXPECT_EQ(widget.left(), expected.left);
    EXPECT_EQ(widget.top(), expected.top);
    EXPECT_EQ(widget.width(), expected.width);
    EXPECT_EQ(widget.height(), expected.height);
    const RECT pixels = pixelBox(widget);
    EXPECT_EQ(pixels.left, forms::toPixels(expected.left, 96));
    EXPECT_EQ(pixels.right, forms::toPixels(expected.left + expected.width, 96));
    EXPECT_EQ(pixels.bottom, forms::toPixels(expected.top + expected.height, 96));
  }

  /// Outer size in pixels of the window at its least size.
  static SIZE leastPixels() {
    resize(sub(), 3500, 2800);
    return sizeOf(rectOf(sub().handle()));
  }

  static void expectLaidOut(int width, int height) {
    const frmSub& form = sub();
    const int list = form.TreeView1.width();
    EXPECT_EQ(form.width(), width);
    EXPECT_EQ(form.height(), height);
    EXPECT_EQ(form.txtInput.left(), 750);
    EXPECT_EQ(form.txtInput.width(), width - 1750);
    EXPECT_EQ(form.cmdExit.left(), width - 900);
    expectBox(form.TreeView1, {30, 600, list, height - 1000});
    expectBox(form.Image1, {list + 30, 600, 20, height - 1000});
    expectBox(form.txtOut, {list + 50, 600, width - list - 200, height - 1000});
  }
};

TEST_F(FrmSubLayout, FollowsTheWindow) {
  open();
  for (const auto& [width, height] : {std::pair{6000, 5000}, {3600, 2900}, {9001, 7003}}) {
    resize(sub(), width, height);
    expectLaidOut(width, height);
  }
}

TEST_F(FrmSubLayout, BelowItsThresholdsItSnaps) {
  open();
  sub().setSize(3000, 2500);
  expectLaidOut(3500, 2800);
  sub().setSize(3599, 5000);
  expectLaidOut(3500, 5000);
  sub().setSize(5000, 2899);
  expectLaidOut(5000, 2800);
}

TEST_F(FrmSubLayout, TheUsersHandSnapsItToo) {
  open();
  actUntil(
      "frmSub in its smallest size",
      [] {
        SetWindowPos(sub().handle(), nullptr, 0, 0, 120, 150,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
      },
      [] { return sub().width() == 3500 && sub().height() == 2800; }, kLastingWindow);
  expectLaidOut(3500, 2800);
}

TEST_F(FrmSubLayout, DraggedBelowItsThresholdsItGrowsAtTheDraggedSide) {
  open();
  const SIZE least = leastPixels();
  const RECT tooSmall{400, 300, 500, 380};
  const auto dragged = [&](WPARAM side) {
    RECT rect = tooSmall;
    EXPECT_TRUE(SendMessageW(sub().handle(), WM_SIZING, side, reinterpret_cast<LPARAM>(&rect)));
    EXPECT_EQ(sizeOf(rect).cx, least.cx);
    EXPECT_EQ(sizeOf(rect).cy, least.cy);
    return rect;
  };
  for (const WPARAM side : {WMSZ_LEFT, WMSZ_TOPLEFT, WMSZ_BOTTOMLEFT}) {
    EXPECT_EQ(dragged(side).right, tooSmall.right);
  }
  for (const WPARAM side : {WMSZ_RIGHT, WMSZ_TOPRIGHT, WMSZ_BOTTOMRIGHT}) {
    EXPECT_EQ(dragged(side).left, tooSmall.left);
  }
  for (const WPARAM side : {WMSZ_TOP, WMSZ_TOPLEFT, WMSZ_TOPRIGHT}) {
    EXPECT_EQ(dragged(side).bottom, tooSmall.bottom);
  }
  for (const WPARAM side : {WMSZ_BOTTOM, WMSZ_BOTTOMLEFT, WMSZ_BOTTOMRIGHT}) {
    EXPECT_EQ(dragged(side).top, tooSmall.top);
  }
}

TEST_F(FrmSubLayout, ADragChangesNothingAboveTheThresholds) {
  open();
  const SIZE least = leastPixels();
  // 100 twips between a limit and the size that it leads to: 6 pixels are too few, 7 are enough.
  for (const LONG more : {1L, 6L, 7L, 300L}) {
    RECT rect{400, 300, 400 + least.cx + more, 300 + least.cy + 500};
    SendMessageW(sub().handle(), WM_SIZING, WMSZ_RIGHT, reinterpret_cast<LPARAM>(&rect));
    EXPECT_EQ(rect.right, 400 + least.cx + (more < 7 ? 0 : more));
    EXPECT_EQ(rect.bottom, 300 + least.cy + 500);
    // What the rectangle leads to is not snapped any more.
    SetWindowPos(sub().handle(), nullptr, 0, 0, sizeOf(rect).cx, sizeOf(rect).cy,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(sizeOf(rectOf(sub().handle())).cx, sizeOf(rect).cx);
  }
}

TEST_F(FrmSubLayout, ThePaneLiesInsideTheWindow) {
  open();
  resize(sub(), 6000, 5000);
  RECT client{};
  GetClientRect(sub().handle(), &client);
  // Its height is made for a frame 5 twips, less than a pixel, lower.
  EXPECT_LE(pixelBox(sub().txtOut).right, client.right);
  EXPECT_LE(pixelBox(sub().txtOut).bottom, client.bottom + 1);
  EXPECT_LE(pixelBox(sub().cmdExit).right, client.right);
}

TEST_F(FrmSubLayout, EveryPaintPutsItOnTopAgainWithoutTakingTheFocus) {
  frmSub& form = open();
  OtherProgram other;
  other.activate();
  other.raiseAboveAll();
  ASSERT_TRUE(isAbove(other.window(), form.handle()));
  const RECT before = rectOf(form.handle());
  InvalidateRect(form.handle(), nullptr, TRUE);
  EXPECT_TRUE(eventually([&] { return isAbove(form.handle(), other.window()); }));
  const RECT after = rectOf(form.handle());
  EXPECT_TRUE(EqualRect(&before, &after));
  EXPECT_TRUE(always([&] { return other.isForeground(); }, 60));
}

TEST_F(FrmSubLayout, MaximisedItIsLaidOutAndComesBack) {
  open();
  resize(sub(), 6004, 5003);
  ShowWindow(sub().handle(), SW_MAXIMIZE);
  ASSERT_TRUE(eventually([] { return sub().width() > 10'000; }));
  passTime(100);
  expectLaidOut(sub().width(), sub().height());
  ShowWindow(sub().handle(), SW_RESTORE);
  ASSERT_TRUE(eventually([] { return sub().width() == 6004; }));
  expectLaidOut(6004, 5003);
}

TEST_F(FrmSubLayout, FollowsTheResolution) {
  open();
  sub().setSize(6000, 5000);
  const RECT suggested{100, 100, 900, 800};
  SendMessageW(sub().handle(), WM_DPICHANGED, MAKEWPARAM(144, 144),
               reinterpret_cast<LPARAM>(&suggested));
  forms::doEvents();
  const RECT pane = pixelBox(sub().txtOut);
  EXPECT_EQ(pane.left, forms::toPixels(sub().TreeView1.width() + 50, 144));
  EXPECT_EQ(pane.top, 60);
}

}  // namespace
}  // namespace support
