#include <stdexcept>
#include <utility>

#include "tests/support/window/window_test.h"

namespace support {
namespace {

class FormOpening : public WindowTest {};

/// A form with which the first ShowWindow does something else, as where the program's starter asked
/// for that.
class DivertedForm : public FormA {
 public:
  int diversion = SW_HIDE;

 private:
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    const LRESULT result = FormA::handleMessage(message, wParam, lParam);
    const bool shows = message == WM_WINDOWPOSCHANGED &&
                       (reinterpret_cast<WINDOWPOS*>(lParam)->flags & SWP_SHOWWINDOW) != 0;
    if (shows && !std::exchange(diverted_, true)) ShowWindow(handle(), diversion);
    return result;
  }

  bool diverted_ = false;
};

TEST_F(FormOpening, RaisesItsEventsInOrder) {
  opened<FormA>();
  ASSERT_TRUE(eventually([] { return events().size() >= 4; }));
  // A window manager may mend the size afterwards.
  events().resize(4);
  EXPECT_EQ(events(), (Events{"A.Load", "A.Resize", "A.Activate", "A.first.GotFocus"}));
}

TEST_F(FormOpening, LoadsOnTheFirstReferenceOnly) {
  EXPECT_FALSE(forms::isLoaded<FormA>());
  auto& form = forms::form<FormA>();
  EXPECT_TRUE(forms::isLoaded<FormA>());
  EXPECT_EQ(&forms::form<FormA>(), &form);
  EXPECT_EQ(events(), Events{"A.Load"});
  EXPECT_FALSE(IsWindowVisible(form.handle()));
}

TEST_F(FormOpening, IsFoundByItsWindow) {
  auto& form = forms::form<FormA>();
  EXPECT_EQ(forms::Form::of(form.handle()), &form);
  EXPECT_EQ(forms::Form::of(form.first.handle()), nullptr);
  EXPECT_EQ(forms::Form::of(GetDesktopWindow()), nullptr);
  EXPECT_EQ(forms::Form::of(nullptr), nullptr);
  EXPECT_EQ(form.widgetOf(form.first.handle()), &form.first);
  EXPECT_EQ(form.widgetOf(form.handle()), nullptr);
  EXPECT_EQ(form.widgetOf(forms::form<FormB>().first.handle()), nullptr);
  EXPECT_EQ(form.widgetOf(nullptr), nullptr);
}

TEST_F(FormOpening, ShowsWhatLoadingPrepared) {
  plan<'A'>().load = [] { forms::form<FormA>().first.setText(u"ready"); };
  EXPECT_EQ(opened<FormA>().first.text(), u"ready");
}

TEST_F(FormOpening, ShowingBringsItToTheFrontByItself) {
  auto& form = opened<FormA>();
  auto& other = opened<FormB>();
  form.setPosition(1500, 1500);
  other.setPosition(1500, 1500);
  actUntil(
      "a form to come to the front",
      [&] {
        other.show();
        awaitActive(other);
        form.show();
      },
      [&] {
        return GetForegroundWindow() == form.handle() && isAbove(form.handle(), other.handle()) &&
               GetAncestor(WindowFromPoint(centreOf(form.second)), GA_ROOT) == form.handle();
      },
      kLastingWindow);
}

TEST_F(FormOpening, ShowingAgainRaisesTheEventsOfAMoveOfTheFocus) {
  auto& form = opened<FormA>();
  opened<FormB>();
  events().clear();
  form.show();
  ASSERT_TRUE(eventually([] { return events().size() >= 4; }));
  events().resize(4);
  EXPECT_EQ(events(),
            (Events{"B.first.LostFocus", "B.LostFocus", "A.Activate", "A.first.GotFocus"}));
}

TEST_F(FormOpening, ShowingAgainRestoresAMinimisedForm) {
  auto& form = opened<FormA>();
  ShowWindow(form.handle(), SW_MINIMIZE);
  ASSERT_TRUE(always([&] { return form.isMinimised(); }, 100));
  form.show();
  awaitActive(form);
  EXPECT_FALSE(form.isMinimised());
  EXPECT_TRUE(eventually([&] { return GetFocus() == form.first.handle(); }));
}

TEST_F(FormOpening, TheProgramsStarterHasNoSayInIt) {
  plan<'A'>().design.frame = forms::Frame::kBorderless;
  for (const bool neverActive : {false, true}) {
    plan<'A'>().design.neverActive = neverActive;
    for (const int diversion : {SW_HIDE, SW_SHOWMINNOACTIVE, SW_MINIMIZE, SW_SHOWMAXIMIZED}) {
      auto& form = forms::form<DivertedForm>();
      form.diversion = diversion;
      form.show();
      EXPECT_TRUE(IsWindowVisible(form.handle())) << diversion;
      EXPECT_FALSE(form.isMinimised()) << diversion;
      EXPECT_FALSE(IsZoomed(form.handle())) << diversion;
      EXPECT_EQ(form.width(), 4500) << diversion;
      form.unload();
      forms::doEvents();
    }
  }
}

TEST_F(FormOpening, AnErrorWhileLoadingIsShownAndTheFormStays) {
  plan<'A'>().load = [] { throw std::runtime_error("加载失败"); };
  auto& form = opened<FormA>();
  const auto seen = boxes.take();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, u"加载失败");
  EXPECT_EQ(seen[0].icon, Icon::kError);
  EXPECT_EQ(seen[0].title, u"");
  EXPECT_TRUE(IsWindowVisible(form.handle()));
  EXPECT_EQ(&forms::form<FormA>(), &form);
}

TEST_F(FormOpening, GivesAnOwnedFormItsOwner) {
  auto& owner = opened<FormA>();
  auto& owned = forms::form<FormB>();
  owned.show(&owner);
  awaitActive(owned);
  EXPECT_EQ(GetWindow(owned.handle(), GW_OWNER), owner.handle());
}

TEST_F(FormOpening, AFormCanOpenAnotherWhileItLoads) {
  plan<'A'>().load = [] { forms::form<FormB>(); };
  opened<FormA>();
  ASSERT_TRUE(eventually([] { return events().size() >= 5; }));
  events().resize(5);
  EXPECT_EQ(events(), (Events{"A.Load", "B.Load", "A.Resize", "A.Activate", "A.first.GotFocus"}));
}

}  // namespace
}  // namespace support
