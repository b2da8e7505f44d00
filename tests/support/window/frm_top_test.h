#pragma once

#include "app/frm_menu.h"
#include "app/frm_top.h"
#include "app/state.h"
#include "capture/frm_screen_word.h"
#include "tests/support/window/capture_state.h"
#include "tests/support/window/dictionary.h"
#include "tests/support/window/open_menu.h"
#include "tests/support/window/window_test.h"

namespace support {

/// The toolbar, started as the program starts it.
class FrmTopTest : public WindowTest {
 protected:
  FrmTopTest() {
    user::IdxWords.clear();
    user::ConnectionString.clear();
    user::BrowserPath.clear();
    user::MainOpen = true;
  }

  static frmTop& top() { return forms::form<frmTop>(); }
  static frmMenu& menu() { return forms::form<frmMenu>(); }
  static frmScreenWord& host() { return forms::form<frmScreenWord>(); }

  /// Starts it and waits until it has the foreground and the index is there.
  frmTop& start() {
    frmTop& form = top();
    awaitActive(form);
    EXPECT_TRUE(eventually([] { return !user::IdxWords.empty(); }));
    return form;
  }

  /// Whether the menu's item 鼠标取词 has its check mark.
  static bool menuChecked() {
    for (std::size_t place = 0; place < menu().mnu_file.count(); ++place) {
      const auto& item = menu().mnu_file.item(place);
      if (item.caption == u"鼠标取词") return item.checked;
    }
    ADD_FAILURE() << "the item is missing";
    return false;
  }

  static void expectCaptureShown(bool on) {
    const auto& shown = on ? top().cmdMouseYes : top().cmdMouseNot;
    EXPECT_EQ(top().cmdMouse.picture(), shown.picture());
    EXPECT_EQ(top().cmdMouse.toolTip(), on ? u"允许鼠标取词" : u"禁止鼠标取词");
    EXPECT_EQ(menuChecked(), on);
  }

  /// Clicks a button of the toolbar with the mouse.
  static void click(const forms::Widget& button) {
    injected::click(centreOf(button));
    passTime(30);
  }

  /// Drops the menu down by a click on its button and lets `act` deal with it.
  static void withMenu(std::function<void(HWND)> act) {
    const ModalPoller user([act = std::move(act)] {
      HWND window = openMenu();
      if (window == nullptr) return false;
      act(window);
      return true;
    });
    injected::click(centreOf(top().Command1));
    EXPECT_TRUE(eventually([&] { return user.done() && openMenu() == nullptr; }));
    forms::doEvents();
  }

  /// Chooses the menu's item `number`, counted from 1 without the separators, by keys.
  static void chooseFromMenu(int number) {
    withMenu([=](HWND) {
      for (int i = 0; i < number; ++i) input::key(VK_DOWN);
      input::key(VK_RETURN);
    });
  }
};

}  // namespace support
