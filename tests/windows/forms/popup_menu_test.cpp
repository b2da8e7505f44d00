#include "forms/popup_menu.h"

#include "forms/dispatcher.h"
#include "forms/timer.h"
#include "tests/support/window/open_menu.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

class PopupMenuTest : public WindowTest {
 protected:
  PopupMenuTest() {
    menu.add(u"反查", [] { events().emplace_back("search"); });
    menu.add(u"-");
    menu.add(u"复制", [] { events().emplace_back("copy"); });
    menu.add(u"退出");
    menu.item(2).checked = true;
    menu.item(3).enabled = false;
  }

  /// Drops the menu down and lets `act` deal with it. Returns the chosen item.
  const forms::PopupMenu::Item* choose(std::function<void(HWND)> act) {
    const ModalPoller user([act = std::move(act)] {
      HWND window = openMenu();
      if (window == nullptr) return false;
      act(window);
      return true;
    });
    const auto* chosen = menu.choose(forms::form<FormA>(), {500, 300});
    EXPECT_TRUE(user.done());
    return chosen;
  }

  forms::PopupMenu menu;
};

TEST_F(PopupMenuTest, ShowsItsItemsAsDescribed) {
  opened<FormA>();
  std::vector<MenuLine> lines;
  POINT corner{};
  choose([&](HWND window) {
    lines = linesOf(window);
    const RECT rect = rectOf(window);
    corner = {rect.left, rect.top};
    input::key(VK_ESCAPE);
  });
  EXPECT_EQ(lines,
            (std::vector<MenuLine>{
                {u"反查", true, false}, {u"-"}, {u"复制", true, true}, {u"退出", false, false}}));
  EXPECT_EQ(corner.x, 500);
  EXPECT_EQ(corner.y, 300);
}

TEST_F(PopupMenuTest, KeysChooseAndSkipTheSeparator) {
  opened<FormA>();
  events().clear();
  const auto* chosen = choose([](HWND) {
    input::key(VK_DOWN);
    input::key(VK_DOWN);
    input::key(VK_RETURN);
  });
  ASSERT_EQ(chosen, &menu.item(2));
  // Its handler runs when the caller says so.
  EXPECT_EQ(times("copy"), 0);
  chosen->onClick();
  EXPECT_EQ(times("copy"), 1);
}

// As a handler does that runs while the menu is open, from a timer.
TEST_F(PopupMenuTest, DoEventsLeavesItsInputToIt) {
  opened<FormA>();
  const auto* chosen = choose([](HWND) {
    input::key(VK_DOWN);
    input::key(VK_RETURN);
    forms::doEvents();
  });
  EXPECT_EQ(chosen, &menu.item(0));
  chosen = choose([](HWND window) {
    const RECT rect = rectOf(window);
    injected::click({rect.left + 40, rect.top + 12});
    forms::doEvents();
  });
  EXPECT_EQ(chosen, &menu.item(0));
}

TEST_F(PopupMenuTest, DoEventsHandlesPostedMessagesAndTimersWhileItIsOpen) {
  auto& form = opened<FormA>();
  bool posted = false;
  bool ticked = false;
  forms::Timer timer(form, 10);
  timer.onTimer = [&] { ticked = true; };
  choose([&](HWND) {
    forms::Dispatcher::instance().post([&] { posted = true; });
    timer.setEnabled(true);
    InvalidateRect(form.handle(), nullptr, FALSE);
    EXPECT_TRUE(eventually([&] { return posted && ticked; }));
    EXPECT_FALSE(GetUpdateRect(form.handle(), nullptr, FALSE));
    EndMenu();
  });
}

TEST_F(PopupMenuTest, AClickChooses) {
  opened<FormA>();
  const auto* chosen = choose([](HWND window) {
    const RECT rect = rectOf(window);
    injected::click({rect.left + 40, rect.top + 12});
  });
  EXPECT_EQ(chosen, &menu.item(0));
}

TEST_F(PopupMenuTest, ARightClickChoosesNothing) {
  opened<FormA>();
  const auto* chosen = choose([](HWND window) {
    const RECT rect = rectOf(window);
    injected::rightClick({rect.left + 40, rect.top + 12});
    input::key(VK_ESCAPE);
  });
  EXPECT_EQ(chosen, nullptr);
}

TEST_F(PopupMenuTest, EscapeLeavesIt) {
  opened<FormA>();
  EXPECT_EQ(choose([](HWND) { input::key(VK_ESCAPE); }), nullptr);
  EXPECT_EQ(openMenu(), nullptr);
}

TEST_F(PopupMenuTest, AClickElsewhereLeavesIt) {
  opened<FormA>();
  EXPECT_EQ(choose([](HWND) { injected::click(kNowhere); }), nullptr);
  EXPECT_EQ(openMenu(), nullptr);
}

TEST_F(PopupMenuTest, ADisabledItemCannotBeChosen) {
  opened<FormA>();
  const auto* chosen = choose([](HWND window) {
    const RECT rect = rectOf(window);
    injected::click({rect.left + 40, rect.bottom - 12});
    EndMenu();
  });
  EXPECT_EQ(chosen, nullptr);
}

TEST_F(PopupMenuTest, CountsItsItems) {
  EXPECT_EQ(menu.count(), 4U);
  EXPECT_EQ(menu.add(u"x"), 4U);
  EXPECT_EQ(menu.item(4).caption, u"x");
  EXPECT_TRUE(menu.item(4).enabled);
}

}  // namespace
}  // namespace support
