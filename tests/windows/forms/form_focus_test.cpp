#include "forms/message_box.h"
#include "tests/support/window/other_program.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

class FormFocus : public WindowTest {
 protected:
  /// Waits until a widget has the focus for good, and forgets the events that led to it.
  static void awaitFocus(const forms::Widget& widget) {
    constexpr DWORD kLasting = 100;
    bringToFront(
        widget.form().handle(), [&] { return GetFocus() == widget.handle(); }, kLasting);
    events().clear();
  }
  static bool reached(std::size_t count) {
    return eventually([=] { return events().size() >= count; });
  }
};

TEST_F(FormFocus, LostFocusOfTheOldFormComesBeforeActivateOfTheNew) {
  auto& from = opened<FormA>();
  auto& to = opened<FormB>();
  from.show();
  awaitFocus(from.first);
  SetForegroundWindow(to.handle());
  ASSERT_TRUE(reached(4));
  EXPECT_EQ(events(),
            (Events{"A.first.LostFocus", "A.LostFocus", "B.Activate", "B.first.GotFocus"}));
}

TEST_F(FormFocus, AClickMovesItInTheSameOrder) {
  auto& from = opened<FormA>();
  from.setPosition(300, 300);
  auto& to = opened<FormB>();
  to.setPosition(9000, 300);
  from.show();
  awaitFocus(from.first);
  injected::click(centreOf(to.second));
  ASSERT_TRUE(eventually([] { return times("B.second.GotFocus") == 1; }));
  EXPECT_EQ(events()[0], "A.first.LostFocus");
  EXPECT_EQ(events()[1], "A.LostFocus");
  EXPECT_EQ(events()[2], "B.Activate");
  EXPECT_EQ(events().back(), "B.second.GotFocus");
}

TEST_F(FormFocus, TabMovesItInsideAFormWithoutTheFormLosingIt) {
  opened<FormA>();
  ASSERT_TRUE(reached(4));
  events().clear();
  input::key(VK_TAB);
  ASSERT_TRUE(reached(2));
  input::key(VK_TAB);
  ASSERT_TRUE(reached(4));
  EXPECT_EQ(events(), (Events{"A.first.LostFocus", "A.second.GotFocus", "A.second.LostFocus",
                              "A.first.GotFocus"}));
}

TEST_F(FormFocus, AnotherProgramTakesAndGivesItBackToTheSameWidget) {
  OtherProgram other;
  auto& form = opened<FormA>();
  form.second.setFocus();
  events().clear();
  other.activate();
  ASSERT_TRUE(reached(2));
  EXPECT_EQ(events(), (Events{"A.second.LostFocus", "A.LostFocus"}));
  events().clear();
  SetForegroundWindow(form.handle());
  ASSERT_TRUE(reached(2));
  EXPECT_EQ(events(), (Events{"A.Activate", "A.second.GotFocus"}));
}

TEST_F(FormFocus, AMessageBoxIsNoMoveOfTheFocus) {
  auto& form = opened<FormA>();
  ASSERT_TRUE(reached(4));
  events().clear();
  bool quiet = false;
  boxes.whileUp([&](HWND) { quiet = always([] { return events().empty(); }, 60); });
  forms::showMessage(u"请选择字典！", forms::MessageIcon::kExclamation);
  EXPECT_EQ(boxes.take().size(), 1U);
  EXPECT_TRUE(quiet);
  ASSERT_TRUE(eventually([&] { return GetFocus() == form.first.handle(); }));
  // A window manager that is busy may leave no window active for a moment; then all is as it was.
  passTime(50);
  EXPECT_TRUE(events().empty() || events().back() == "A.first.GotFocus");
}

TEST_F(FormFocus, AMoveOfTheFocusDuringABoxIsRaisedAfterwards) {
  opened<FormA>();
  ASSERT_TRUE(reached(4));
  auto& other = forms::form<FormB>();
  events().clear();
  bool quiet = false;
  boxes.whileUp([&](HWND) {
    other.show();
    quiet = always([] { return times("A.LostFocus") + times("B.Activate") == 0; }, 60);
  });
  forms::showMessage(u"…", forms::MessageIcon::kNone);
  EXPECT_EQ(boxes.take().size(), 1U);
  EXPECT_TRUE(quiet);
  awaitActive(other);
  EXPECT_TRUE(
      eventually([] { return !events().empty() && events().back() == "B.first.GotFocus"; }));
  EXPECT_GE(times("A.LostFocus"), 1);
  EXPECT_GE(times("B.Activate"), 1);
}

TEST_F(FormFocus, AFormThatIsUnloadedWhileABoxIsUpRaisesNothingMore) {
  auto& form = opened<FormA>();
  opened<FormB>();
  events().clear();
  boxes.whileUp([&](HWND) { form.unload(); });
  forms::showMessage(u"…", forms::MessageIcon::kNone);
  EXPECT_EQ(boxes.take().size(), 1U);
  passTime(50);
  EXPECT_EQ(times("A.Unload"), 1);
  EXPECT_EQ(times("A.LostFocus") + times("A.first.LostFocus") + times("A.Activate"), 0);
}

TEST_F(FormFocus, AClickOnAButtonIsHandledAfterTheEventsOfItsFocus) {
  auto& form = opened<FormA>();
  ASSERT_TRUE(reached(4));
  events().clear();
  form.second.onMouseDown = [](forms::TwipPoint) { events().emplace_back("MouseDown"); };
  injected::click(centreOf(form.second));
  ASSERT_TRUE(reached(3));
  passTime(20);
  EXPECT_EQ(events().front(), "MouseDown");
  EXPECT_EQ(events().back(), "A.second.GotFocus");
}

TEST_F(FormFocus, AFormThatMovesTheFocusInActivateIsTold) {
  plan<'A'>().activate = [] { forms::form<FormA>().second.setFocus(); };
  opened<FormA>();
  ASSERT_TRUE(eventually([] { return times("A.second.GotFocus") == 1; }));
  EXPECT_EQ(times("A.first.GotFocus"), 0);
}

TEST_F(FormFocus, TwoWidgetsThatFightForItDoNotHangTheProgram) {
  auto& form = opened<FormA>();
  ASSERT_TRUE(reached(4));
  int events1 = 0;
  form.first.onGotFocus = [&] {
    if (++events1 < 1000) SetFocus(form.second.handle());
  };
  form.second.onGotFocus = [&] { SetFocus(form.first.handle()); };
  form.second.setFocus();
  form.first.onGotFocus = [] {};
  passTime(30);
  EXPECT_LT(events1, 1000);
}

}  // namespace
}  // namespace support
