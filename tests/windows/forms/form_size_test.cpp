#include "tests/support/window/window_test.h"

namespace support {
namespace {

class FormSize : public WindowTest {
 protected:
  /// Takes the form out of the window manager's hand, which may answer one size while the next is
  /// set.
  static void notManaged() {
    plan<'A'>().design.frame = forms::Frame::kBorderless;
    plan<'A'>().design.neverActive = true;
  }
};

/// A form whose tracking size nothing limits.
class UnlimitedForm : public FormA {
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message != WM_GETMINMAXINFO) return FormA::handleMessage(message, wParam, lParam);
    reinterpret_cast<MINMAXINFO*>(lParam)->ptMaxTrackSize = {10000, 10000};
    return 0;
  }
};

SIZE clientOf(const forms::Form& form) {
  RECT client{};
  GetClientRect(form.handle(), &client);
  return {client.right, client.bottom};
}

TEST_F(FormSize, IsTheClientSizeAndAFrameOf120By405Twips) {
  auto& form = opened<FormA>();
  form.setSize(3500, 3200);
  EXPECT_EQ(clientOf(form).cx, forms::toPixels(3500 - 120, 96));
  EXPECT_EQ(clientOf(form).cy, forms::toPixels(3200 - 405, 96));
}

TEST_F(FormSize, ABorderlessFormHasNoFrame) {
  plan<'A'>().design.frame = forms::Frame::kBorderless;
  auto& form = opened<FormA>();
  form.setSize(1500, 750);
  EXPECT_EQ(clientOf(form).cx, 100);
  EXPECT_EQ(clientOf(form).cy, 50);
  EXPECT_EQ(rectOf(form.handle()).right - rectOf(form.handle()).left, 100);
}

TEST_F(FormSize, KeepsTheTwipsThatWereSetWhateverThePixels) {
  notManaged();
  auto& form = forms::form<FormA>();
  form.show();
  for (int width = 3600; width < 3620; ++width) {
    form.setSize(width, 2900);
    forms::doEvents();
    EXPECT_EQ(form.width(), width);
  }
}

TEST_F(FormSize, TakesTheUsersPixelsAsTwips) {
  auto& form = opened<FormA>();
  const RECT rect = rectOf(form.handle());
  const int width = form.width();
  const int height = form.height();
  SetWindowPos(form.handle(), nullptr, 0, 0, rect.right - rect.left + 10,
               rect.bottom - rect.top + 20, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  forms::doEvents();
  EXPECT_EQ(form.width(), width + 150);
  EXPECT_EQ(form.height(), height + 300);
}

TEST_F(FormSize, ComesBackToTheTwipsThatWereSet) {
  notManaged();
  auto& form = forms::form<FormA>();
  form.show();
  form.setSize(5003, 4006);
  const RECT rect = rectOf(form.handle());
  for (const LONG change : {40, 0}) {
    SetWindowPos(form.handle(), nullptr, 0, 0, rect.right - rect.left + change,
                 rect.bottom - rect.top + change, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    forms::doEvents();
    EXPECT_EQ(form.width() != 5003, change != 0);
  }
  EXPECT_EQ(form.height(), 4006);
}

TEST_F(FormSize, RaisesResizeOnlyOnceShown) {
  notManaged();
  auto& form = forms::form<FormA>();
  form.setSize(6000, 4000);
  form.setSize(7000, 5000);
  EXPECT_EQ(events(), Events{"A.Load"});
  form.show();
  forms::doEvents();
  EXPECT_EQ(times("A.Resize"), 1);
  form.setSize(6000, 4000);
  EXPECT_EQ(times("A.Resize"), 2);
}

TEST_F(FormSize, StopsAt32767Twips) {
  auto& form = opened<FormA>();
  form.setSize(40000, 1'000'000);
  EXPECT_EQ(form.width(), 32767);
  EXPECT_EQ(form.height(), 32767);
  SetWindowPos(form.handle(), nullptr, 0, 0, 5000, 5000,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  forms::doEvents();
  EXPECT_LE(form.width(), 32767);
  EXPECT_LE(form.height(), 32767);
  MINMAXINFO limits{};
  SendMessageW(form.handle(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
  EXPECT_LE(forms::toTwips(limits.ptMaxTrackSize.x, 96), 32767 + 300);
}

TEST_F(FormSize, OfAMaximisedFormIsTheSystemsOwnOnEachMonitor) {
  auto& form = forms::form<FormA>();
  MINMAXINFO limits{};
  limits.ptMaxSize = {5000, 1456};
  SendMessageW(form.handle(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
  EXPECT_EQ(limits.ptMaxSize.x, 5000);
  EXPECT_EQ(limits.ptMaxSize.y, 1456);
}

TEST_F(FormSize, StopsAt32767TwipsWithoutATrackingSizeAsWell) {
  auto& form = forms::form<UnlimitedForm>();
  SetWindowPos(form.handle(), nullptr, 0, 0, 5000, 5000,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  EXPECT_EQ(clientOf(form).cx, forms::toPixels(32767 - 120, 96));
  EXPECT_EQ(clientOf(form).cy, forms::toPixels(32767 - 405, 96));
}

TEST_F(FormSize, IsNeverNegative) {
  auto& form = forms::form<FormA>();
  form.setSize(-5, 0);
  EXPECT_EQ(form.width(), 0);
  EXPECT_EQ(form.height(), 0);
}

TEST_F(FormSize, IsKeptWhileMinimised) {
  auto& form = opened<FormA>();
  form.setSize(5005, 4007);
  events().clear();
  ShowWindow(form.handle(), SW_MINIMIZE);
  ASSERT_TRUE(always([&] { return form.isMinimised(); }, 100));
  EXPECT_EQ(form.width(), 5005);
  EXPECT_EQ(form.height(), 4007);
  EXPECT_EQ(times("A.Resize"), 0);
  ShowWindow(form.handle(), SW_RESTORE);
  ASSERT_TRUE(eventually([&] { return !form.isMinimised(); }));
  EXPECT_EQ(form.width(), 5005);
  EXPECT_EQ(form.height(), 4007);
}

TEST_F(FormSize, ThePlaceIsTheWindowsOwn) {
  auto& form = opened<FormA>();
  form.setPosition(3000, 1500);
  EXPECT_EQ(rectOf(form.handle()).left, 200);
  EXPECT_EQ(rectOf(form.handle()).top, 100);
  EXPECT_EQ(form.left(), 3000);
  EXPECT_EQ(form.top(), 1500);
}

TEST_F(FormSize, ThePlaceIsOnAMonitorAfterAChangeOfTheDisplay) {
  notManaged();
  for (const bool neverActive : {false, true}) {
    plan<'A'>().design.neverActive = neverActive;
    auto& form = forms::form<FormA>();
    form.show();
    const auto moved = [&](int left, int top) {
      SetWindowPos(form.handle(), nullptr, left, top, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
      SendMessageW(form.handle(), WM_DISPLAYCHANGE, 32, MAKELPARAM(1280, 1024));
      return POINT{form.place().left, form.place().top};
    };
    EXPECT_EQ(moved(-5000, 100).x, neverActive ? -5000 : 0);
    EXPECT_EQ(moved(-5000, 100).y, 100);
    // Part of it is seen.
    EXPECT_EQ(moved(-30, -20).x, -30);
    EXPECT_EQ(form.width(), 4500);
    form.unload();
    forms::doEvents();
  }
}

TEST_F(FormSize, NeighbouringWidgetsStayNeighbours) {
  auto& form = opened<FormA>();
  form.first.move({30, 600, 2002, 300});
  form.second.move({2032, 600, 20, 300});
  EXPECT_EQ(pixelBox(form.first).right, pixelBox(form.second).left);
  EXPECT_EQ(form.first.width(), 2002);
  form.first.setWidth(1000);
  EXPECT_EQ(form.first.width(), 1000);
  EXPECT_EQ(pixelBox(form.first).left, 2);
  form.first.setWidth(-100);
  EXPECT_EQ(pixelBox(form.first).right, pixelBox(form.first).left);
}

}  // namespace
}  // namespace support
