#include "forms/message_box.h"
#include "forms/stacking.h"
#include "tests/support/process/find.h"
#include "tests/support/window/other_program.h"
#include "tests/support/window/painted.h"
#include "tests/support/window/plain_window.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

/// A floats, B is an ordinary window, C a bar.
class FormStacking : public WindowTest {
 protected:
  FormStacking() {
    plan<'A'>().design.topmost = true;
    plan<'A'>().design.floating = true;
    plan<'A'>().paint = [] { a().bringToTop(); };
    plan<'B'>().load = [] { b().centre(); };
    plan<'C'>().design.topmost = true;
    plan<'C'>().design.frame = forms::Frame::kBorderless;
    plan<'C'>().design.width = 1500;
    plan<'C'>().design.height = 375;
    plan<'C'>().paint = [] { c().bringToTop(); };
  }

  static FormA& a() { return forms::form<FormA>(); }
  static FormB& b() { return forms::form<FormB>(); }
  static FormC& c() { return forms::form<FormC>(); }

  /// Opens A in the middle of the screen, so large that B finds no place beside it.
  FormA& openLargeA() {
    auto& form = opened<FormA>();
    actUntil(
        "a large form",
        [&] {
          form.setSize(15000, 13500);
          form.setPosition(1800, 1200);
        },
        [&] { return form.width() == 15000 && rectOf(form.handle()).left < 200; }, kUntilLeftAlone);
    return form;
  }

  /// Opens A in the middle of the screen in its own size.
  FormA& openInTheMiddle() {
    auto& form = opened<FormA>();
    forms::PixelBox middle;
    actUntil(
        "a form in the middle",
        [&] {
          form.centre();
          middle = form.place();
        },
        [&] { return form.place() == middle; }, kUntilLeftAlone);
    return form;
  }

  /// Waits until B, which lies over A, is the active window and topmost; brings it to the front if
  /// the window manager gives another one the focus.
  static void awaitTopmost(const FormB& window) {
    const auto isInFront = [&] {
      return GetForegroundWindow() == window.handle() && isTopmost(window.handle());
    };
    bringToFront(window.handle(), isInFront, kUntilLeftAlone.lasting);
  }

  /// Opens B, which finds no place beside a large A.
  FormB& openOverA() {
    auto& window = opened<FormB>();
    awaitTopmost(window);
    return window;
  }

  static void repaint(const forms::Form& form) {
    RedrawWindow(form.handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    forms::doEvents();
  }

  /// Whether the screen shows of `window` what it shows without those that might cover it.
  static bool isSeenWhole(HWND window, std::initializer_list<const forms::Form*> others) {
    // Neither the blinking caret nor what is seen beside a frame that is drawn narrower than it is.
    HideCaret(nullptr);
    const RECT inside = clientRectOf(window);
    const std::vector<COLORREF> shown = settledPixels(inside);
    for (const forms::Form* other : others) ShowWindow(other->handle(), SW_HIDE);
    forms::doEvents();
    const bool same = eventually(
        [&] {
          HideCaret(nullptr);
          return settledPixels(inside) == shown;
        },
        2'000);
    for (const forms::Form* other : others) ShowWindow(other->handle(), SW_SHOWNA);
    forms::doEvents();
    return same;
  }

  /// Shows C, the bar, and keeps in mind how it looks where nothing covers it.
  static FormC& openBar() {
    auto& bar = c();
    bar.setPosition(6000, 1500);
    bar.show();
    awaitActive(bar);
    HideCaret(nullptr);
    look() = settledPixels(rectOf(bar.handle()));
    return bar;
  }
  static std::vector<COLORREF>& look() {
    static std::vector<COLORREF> pixels;
    return pixels;
  }
  /// Whether nothing comes to cover it.
  static bool barIsSeen() {
    return eventually([] { return settledPixels(rectOf(c().handle())) == look(); });
  }

  static bool areApart(const forms::Form& one, const forms::Form& other) {
    return !forms::meet(one.place(), other.place());
  }
};

// An input method shows its windows on our thread, and keeps them on top itself.
TEST_F(FormStacking, LetsAWindowAloneThatIsNoneOfOurs) {
  auto& floating = opened<FormA>();
  const PlainWindow candidates(plainClass(L"Test.Candidates"), {900, 700, 1100, 740});
  ASSERT_TRUE(isAbove(candidates.handle(), floating.handle()));
  forms::bringToTop(floating.handle());
  EXPECT_TRUE(isAbove(candidates.handle(), floating.handle()));
  SetWindowPos(candidates.handle(), floating.handle(), 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  ASSERT_TRUE(isAbove(floating.handle(), candidates.handle()));
  forms::raiseWhatIsAbove(floating.handle());
  EXPECT_TRUE(isAbove(floating.handle(), candidates.handle()));
}

TEST_F(FormStacking, AnOrdinaryWindowOpensBesideAFloatingOne) {
  auto& floating = openInTheMiddle();
  auto& window = opened<FormB>();
  EXPECT_TRUE(eventually([&] { return areApart(floating, window); }));
  EXPECT_TRUE(eventually([&] { return !isTopmost(window.handle()); }));
  repaint(floating);
  EXPECT_TRUE(isSeenWhole(window.handle(), {&floating}));
}

TEST_F(FormStacking, WithoutRoomItIsTopmostWhileItIsActive) {
  auto& floating = openLargeA();
  auto& window = openOverA();
  EXPECT_FALSE(areApart(floating, window));
  EXPECT_TRUE(isSeenWhole(window.handle(), {&floating}));
  floating.show();
  awaitActive(floating);
  EXPECT_TRUE(eventually([&] { return !isTopmost(window.handle()); }));
  EXPECT_TRUE(isSeenWhole(floating.handle(), {&window}));
  window.show();
  awaitTopmost(window);
  EXPECT_TRUE(isSeenWhole(window.handle(), {&floating}));
}

TEST_F(FormStacking, ForcedPaintsOfTheFloatingOneLeaveTheActiveWindowAbove) {
  auto& floating = openLargeA();
  auto& window = openOverA();
  for (int i = 0; i < 20; ++i) repaint(floating);
  EXPECT_TRUE(isAbove(window.handle(), floating.handle()));
  EXPECT_TRUE(isSeenWhole(window.handle(), {&floating}));
}

TEST_F(FormStacking, AWindowThatIsMovedOverAFloatingOneStaysVisible) {
  auto& floating = openInTheMiddle();
  auto& window = opened<FormB>();
  ASSERT_TRUE(eventually([&] { return !isTopmost(window.handle()); }));
  const RECT place = rectOf(floating.handle());
  actUntil(
      "a window among topmost ones to become topmost",
      [&] {
        SetWindowPos(window.handle(), nullptr, place.left + 30, place.top + 30, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER);
      },
      [&] { return isTopmost(window.handle()); }, kUntilLeftAlone);
  EXPECT_TRUE(isSeenWhole(window.handle(), {&floating}));
}

TEST_F(FormStacking, AnotherProgramThatIsTurnedToIsNotCovered) {
  auto& floating = openLargeA();
  auto& window = openOverA();
  const OtherProgram other;
  other.activate();
  EXPECT_TRUE(eventually([&] { return !isTopmost(window.handle()); }));
  EXPECT_TRUE(eventually([&] { return isAbove(other.window(), window.handle()); }));
  EXPECT_TRUE(eventually([&] { return isAbove(floating.handle(), other.window()); }));
}

TEST_F(FormStacking, ADialogAndItsOwnerAreBothSeen) {
  auto& floating = openLargeA();
  auto& window = openOverA();
  plan<'C'>().design = plainDesign('C');
  plan<'C'>().design.frame = forms::Frame::kDialog;
  plan<'C'>().design.width = 2000;
  plan<'C'>().design.height = 1200;
  plan<'C'>().load = [] { c().centre(b()); };
  c().show(&window);
  awaitActive(c());
  EXPECT_TRUE(eventually([&] { return isTopmost(window.handle()) && isTopmost(c().handle()); }));
  for (int i = 0; i < 5; ++i) repaint(floating);
  EXPECT_TRUE(isAbove(window.handle(), floating.handle()));
  EXPECT_TRUE(isSeenWhole(c().handle(), {&floating}));
}

TEST_F(FormStacking, AMessageBoxIsSeenWhole) {
  auto& floating = openLargeA();
  auto& window = openOverA();
  bool seen = false;
  bool ownerAbove = false;
  boxes.whileUp([&](HWND box) {
    SetWindowPos(floating.handle(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    forms::doEvents();
    ownerAbove = isAbove(window.handle(), floating.handle());
    seen = isSeenWhole(box, {&floating});
  });
  forms::showMessage(u"没有该词条", forms::MessageIcon::kInformation);
  EXPECT_TRUE(seen);
  EXPECT_TRUE(ownerAbove);
  EXPECT_EQ(boxes.take().size(), 1U);
}

TEST_F(FormStacking, AMessageBoxStaysOnTopWhileTheUserTurnsToAnotherProgram) {
  openLargeA();
  auto& window = opened<FormB>();
  const OtherProgram other;
  // Which may have taken the focus on its start.
  awaitTopmost(window);
  bool boxOnTop = false;
  boxes.whileUp([&](HWND box) {
    other.activate();
    EXPECT_TRUE(eventually([&] { return !isTopmost(window.handle()); }));
    boxOnTop = isTopmost(box) && isAbove(box, a().handle());
    SetForegroundWindow(box);
  });
  forms::showMessage(u"没有该词条", forms::MessageIcon::kInformation);
  EXPECT_TRUE(boxOnTop);
  EXPECT_EQ(boxes.take().size(), 1U);
  EXPECT_TRUE(eventually([&] { return isAbove(window.handle(), a().handle()); }));
}

TEST_F(FormStacking, ABarStaysAboveAllAndAFloatingFormBelowIt) {
  auto& bar = openBar();
  auto& floating = openLargeA();
  ASSERT_FALSE(areApart(bar, floating));
  injected::click(centreOf(floating.second));
  EXPECT_TRUE(eventually([&] { return GetFocus() == floating.second.handle(); }));
  repaint(floating);
  EXPECT_TRUE(eventually([&] { return isAbove(bar.handle(), floating.handle()); }));
  EXPECT_TRUE(barIsSeen());
  auto& window = opened<FormB>();
  repaint(bar);
  repaint(floating);
  EXPECT_TRUE(eventually([&] { return isAbove(bar.handle(), window.handle()); }));
  // As the system puts a window that the user clicks to the top.
  SetWindowPos(window.handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  EXPECT_TRUE(eventually([&] { return isAbove(bar.handle(), window.handle()); }));
  EXPECT_TRUE(isAbove(window.handle(), floating.handle()));
}

TEST_F(FormStacking, AMaximisedFloatingFormDoesNotCoverTheBar) {
  auto& bar = openBar();
  auto& floating = opened<FormA>();
  ShowWindow(floating.handle(), SW_MAXIMIZE);
  ASSERT_TRUE(eventually([&] { return !areApart(bar, floating); }));
  EXPECT_TRUE(barIsSeen());
  injected::click(centreOf(floating.second));
  EXPECT_TRUE(eventually([&] { return GetFocus() == floating.second.handle(); }));
  EXPECT_TRUE(eventually([&] { return isAbove(bar.handle(), floating.handle()); }));
  EXPECT_TRUE(barIsSeen());
}

TEST_F(FormStacking, WhatStaysOnTopComesAboveOtherProgramsTogether) {
  auto& bar = openBar();
  auto& floating = openLargeA();
  const OtherProgram other;
  other.activate();
  other.raiseAboveAll();
  ASSERT_TRUE(isAbove(other.window(), bar.handle()));
  // A window that is being activated may come to the front once more meanwhile.
  EXPECT_TRUE(eventually([&] {
    repaint(floating);
    return isAbove(floating.handle(), other.window()) && isAbove(bar.handle(), floating.handle());
  }));
  EXPECT_TRUE(always([&] { return other.isForeground(); }, 60));
}

}  // namespace
}  // namespace support
