#include <stdexcept>

#include "tests/support/window/window_test.h"

namespace support {
namespace {

class FormUnloading : public WindowTest {};

TEST_F(FormUnloading, RunsUnloadBeforeTheWindowGoes) {
  auto& form = opened<FormA>();
  const HWND window = form.handle();
  const HWND box = form.first.handle();
  bool windowStood = false;
  bool boxStood = false;
  plan<'A'>().unload = [&] {
    windowStood = IsWindowVisible(window) != FALSE;
    boxStood = IsWindow(box) != FALSE && form.first.text().empty();
  };
  form.unload();
  EXPECT_TRUE(windowStood);
  EXPECT_TRUE(boxStood);
  EXPECT_FALSE(IsWindow(window));
  EXPECT_FALSE(forms::isLoaded<FormA>());
}

TEST_F(FormUnloading, TheNextReferenceLoadsItAnew) {
  opened<FormA>().first.setText(u"old");
  forms::form<FormA>().unload();
  forms::doEvents();
  events().clear();
  EXPECT_EQ(opened<FormA>().first.text(), u"");
  EXPECT_EQ(events().front(), "A.Load");
}

TEST_F(FormUnloading, TheCloseBoxUnloads) {
  auto& form = opened<FormA>();
  const HWND window = form.handle();
  PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
  ASSERT_TRUE(eventually([&] { return !IsWindow(window); }));
  EXPECT_FALSE(forms::isLoaded<FormA>());
}

TEST_F(FormUnloading, AltF4Unloads) {
  const HWND window = opened<FormA>().handle();
  input::key(VK_F4, {VK_MENU});
  ASSERT_TRUE(eventually([&] { return !IsWindow(window); }));
  EXPECT_EQ(events()[events().size() - 2], "A.Unload");
}

TEST_F(FormUnloading, AFormWithoutCloseBoxIgnoresAltF4AndClose) {
  plan<'A'>().design.closable = false;
  auto& form = opened<FormA>();
  const HWND window = form.handle();
  input::key(VK_F4, {VK_MENU});
  SendMessageW(window, WM_CLOSE, 0, 0);
  SendMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
  EXPECT_TRUE(always([&] { return IsWindow(window) && forms::isLoaded<FormA>(); }, 100));
}

TEST_F(FormUnloading, EndingTheSessionUnloadsEveryForm) {
  plan<'A'>().design.closable = false;
  opened<FormA>();
  const HWND window = forms::form<FormA>().handle();
  EXPECT_TRUE(SendMessageW(window, WM_QUERYENDSESSION, 0, 0));
  EXPECT_TRUE(IsWindow(window));
  SendMessageW(window, WM_ENDSESSION, FALSE, 0);
  EXPECT_TRUE(IsWindow(window));
  SendMessageW(window, WM_ENDSESSION, TRUE, 0);
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(times("A.Unload"), 1);
}

TEST_F(FormUnloading, TheHandlerOfTheSessionsEndDecidesWhatIsUnloaded) {
  static int ended = 0;
  ended = 0;
  forms::setSessionEndHandler([] { ++ended; });
  const HWND window = opened<FormA>().handle();
  EXPECT_TRUE(SendMessageW(window, WM_QUERYENDSESSION, 0, ENDSESSION_CLOSEAPP));
  SendMessageW(window, WM_ENDSESSION, FALSE, ENDSESSION_CLOSEAPP);
  EXPECT_EQ(ended, 0);
  SendMessageW(window, WM_ENDSESSION, TRUE, ENDSESSION_CLOSEAPP);
  forms::setSessionEndHandler(nullptr);
  EXPECT_EQ(ended, 1);
  EXPECT_TRUE(IsWindow(window));
}

TEST_F(FormUnloading, AnOwnersFormsAreUnloadedFirstAndOnce) {
  auto& owner = opened<FormA>();
  auto& owned = forms::form<FormB>();
  owned.show(&owner);
  auto& ownedByOwned = forms::form<FormC>();
  ownedByOwned.show(&owned);
  awaitActive(ownedByOwned);
  events().clear();
  owner.unload();
  forms::doEvents();
  std::erase_if(events(), [](const std::string& event) { return !event.ends_with(".Unload"); });
  EXPECT_EQ(events(), (Events{"C.Unload", "B.Unload", "A.Unload"}));
  EXPECT_FALSE(forms::isLoaded<FormB>());
  EXPECT_FALSE(forms::isLoaded<FormC>());
}

TEST_F(FormUnloading, UnloadingFromUnloadRunsItOnce) {
  auto& form = opened<FormA>();
  plan<'A'>().unload = [&] {
    EXPECT_TRUE(form.isUnloading());
    form.unload();
  };
  form.unload();
  EXPECT_EQ(times("A.Unload"), 1);
}

TEST_F(FormUnloading, AnOwnedFormMayUnloadItsOwner) {
  auto& owner = opened<FormA>();
  auto& owned = forms::form<FormB>();
  owned.show(&owner);
  awaitActive(owned);
  plan<'B'>().unload = [&] { owner.unload(); };
  owner.unload();
  forms::doEvents();
  EXPECT_EQ(times("A.Unload"), 1);
  EXPECT_EQ(times("B.Unload"), 1);
  EXPECT_FALSE(forms::isLoaded<FormA>());
  EXPECT_FALSE(forms::isLoaded<FormB>());
}

TEST_F(FormUnloading, AnErrorInUnloadIsShownAndTheWindowGoes) {
  auto& form = opened<FormA>();
  const HWND window = form.handle();
  plan<'A'>().unload = [] { throw std::runtime_error("disk full"); };
  form.unload();
  ASSERT_EQ(boxes.take().size(), 1U);
  EXPECT_FALSE(IsWindow(window));
}

TEST_F(FormUnloading, TheObjectOutlivesTheHandlerThatUnloadsIt) {
  auto& form = opened<FormA>();
  bool gone = true;
  bool textWasThere = false;
  form.first.onChange = [&] {
    form.unload();
    forms::doEvents();
    gone = times("A.gone") > 0;
    textWasThere = form.first.text().empty();
  };
  form.first.setText(u"bye");
  EXPECT_FALSE(gone);
  EXPECT_TRUE(textWasThere);
  EXPECT_TRUE(eventually([] { return times("A.gone") == 1; }));
}

TEST_F(FormUnloading, AFormCanBeOpenedAgainFromTheHandlerThatUnloadsIt) {
  auto& form = opened<FormA>();
  form.first.onChange = [&] {
    form.unload();
    forms::form<FormA>().show();
  };
  form.first.setText(u"again");
  ASSERT_TRUE(eventually([] { return times("A.gone") == 1; }));
  EXPECT_TRUE(forms::isLoaded<FormA>());
  EXPECT_TRUE(IsWindowVisible(forms::form<FormA>().handle()));
}

TEST_F(FormUnloading, AWindowThatIsDestroyedRaisesNoLostFocus) {
  auto& form = opened<FormA>();
  form.unload();
  passTime(50);
  EXPECT_EQ(times("A.LostFocus"), 0);
  EXPECT_EQ(times("A.first.LostFocus"), 0);
}

}  // namespace
}  // namespace support
