#include "app/frm_top.h"
#include "tests/support/window/frm_sub_test.h"
#include "win32/monitor.h"

namespace support {
namespace {

/// Where the quick lookup window opens, with the toolbar on the screen.
class FrmSubPlace : public FrmSubTest {
 protected:
  FrmSubPlace() {
    awaitActive(top());
    user::QuickLookupPlace.reset();
  }

  static frmTop& top() { return forms::form<frmTop>(); }
  static forms::PixelBox work() {
    const RECT rect = win32::monitorOf(top().handle()).work;
    return {rect.left, rect.top, rect.right, rect.bottom};
  }
  /// Closes the window and opens it again.
  frmSub& reopen() {
    sub().unload();
    forms::doEvents();
    return open();
  }
  /// Whether the window stands there and stays, which a window manager may not let it at once.
  static bool standsAt(int left, int top) {
    const auto there = [=] { return sub().place().left == left && sub().place().top == top; };
    return eventually(there) && always(there, 100);
  }
};

TEST_F(FrmSubPlace, OpensJustBelowTheToolbarInItsStatedSize) {
  const frmSub& form = open();
  EXPECT_TRUE(standsAt(top().place().left, top().place().bottom));
  EXPECT_EQ(form.width(), 3500);
  EXPECT_EQ(form.height(), 3200);
  EXPECT_LE(form.place().right, work().right);
}

TEST_F(FrmSubPlace, FollowsAToolbarThatWasMoved) {
  top().setPosition(1500, 3000);
  open();
  EXPECT_TRUE(standsAt(100, 200 + top().place().height()));
}

TEST_F(FrmSubPlace, OpensJustAboveAToolbarAtTheLowerEdge) {
  const int low = work().bottom - top().place().height();
  top().setPosition(1500, forms::toTwips(low, 96));
  const frmSub& form = open();
  EXPECT_TRUE(standsAt(100, low - form.place().height()));
}

TEST_F(FrmSubPlace, AStoredSizeOfALargerMonitorBeginsOnThisOne) {
  settings::write(L"WindowWidth", L"32000");
  settings::write(L"WindowHeight", L"30000");
  const frmSub& form = open();
  EXPECT_TRUE(standsAt(work().left, work().top));
  EXPECT_EQ(form.width(), 32'000);
  EXPECT_EQ(form.height(), 30'000);
}

TEST_F(FrmSubPlace, AnUnusableStoredSizeDoesNotKeepItFromItsPlace) {
  settings::write(L"WindowWidth", L"wide");
  open();
  EXPECT_EQ(boxes.take().size(), 1U);
  EXPECT_TRUE(standsAt(top().place().left, top().place().bottom));
}

TEST_F(FrmSubPlace, NeitherDoesADictionaryThatIsMissing) {
  const std::u16string connection =
      std::exchange(user::ConnectionString, data::connectionString(u"C:\\no such folder\\kk.dat"));
  open();
  user::ConnectionString = connection;
  EXPECT_EQ(boxes.take().size(), 1U);
  EXPECT_TRUE(standsAt(top().place().left, top().place().bottom));
}

TEST_F(FrmSubPlace, ComesBackWhereItWasClosedAndDoesNotDrift) {
  open();
  sub().setPosition(3000, 2250);
  ASSERT_TRUE(standsAt(200, 150));
  for (int i = 0; i < 4; ++i) {
    reopen();
    EXPECT_TRUE(standsAt(200, 150));
  }
}

TEST_F(FrmSubPlace, ClosedWhileMinimisedItComesBackWhereItWasBefore) {
  open();
  sub().setPosition(3000, 2250);
  ASSERT_TRUE(standsAt(200, 150));
  ShowWindow(sub().handle(), SW_MINIMIZE);
  ASSERT_TRUE(always([] { return sub().isMinimised(); }, 100));
  EXPECT_EQ(sub().place().left, 200);
  EXPECT_EQ(sub().place().top, 150);
  reopen();
  EXPECT_TRUE(standsAt(200, 150));
}

TEST_F(FrmSubPlace, WhereNoMonitorIsAnyMoreItsTitleBarComesOntoOne) {
  user::QuickLookupPlace = forms::PixelBox{-4000, -3000, -3767, -2787};
  const forms::PixelBox place = open().place();
  EXPECT_EQ(place.top, work().top);
  EXPECT_GT(place.right, work().left + 50);
  EXPECT_LT(place.left, work().left);
  EXPECT_EQ(sub().width(), 3500);
}

}  // namespace
}  // namespace support
