#include "tests/support/process/clipboard.h"
#include "tests/support/window/clipboard_holder.h"
#include "tests/support/window/frm_sub_test.h"
#include "tests/support/window/open_menu.h"

namespace support {
namespace {

class FrmSubPaneMenu : public FrmSubTest {
 protected:
  /// Opens the menu by a right click on the pane and deals with it. Returns its lines.
  static std::vector<MenuLine> rightClick(std::initializer_list<WORD> keys) {
    return rightClick([keys = std::vector<WORD>(keys)] {
      for (const WORD key : keys) input::key(key);
    });
  }
  static std::vector<MenuLine> rightClick(const std::function<void()>& act) {
    std::vector<MenuLine> lines;
    const ModalPoller user([&] {
      HWND window = openMenu();
      if (window == nullptr) return false;
      lines = linesOf(window);
      act();
      return true;
    });
    injected::rightClick(centreOf(sub().txtOut));
    EXPECT_TRUE(eventually([&] { return user.done() && openMenu() == nullptr; }));
    forms::doEvents();
    return lines;
  }

  static std::vector<MenuLine> both(bool enabled) {
    return {{u"反查", enabled, false}, {u"复制", enabled, false}};
  }
};

TEST_F(FrmSubPaneMenu, WithoutASelectionBothItemsAreDisabled) {
  open();
  EXPECT_EQ(rightClick({VK_ESCAPE}), both(false));
}

TEST_F(FrmSubPaneMenu, WithASelectionBothAreEnabled) {
  open().txtInput.setText(u"data");
  sub().txtOut.select(1, 4);
  EXPECT_EQ(rightClick({VK_ESCAPE}), both(true));
  EXPECT_EQ(sub().txtOut.selText(), u"data");
  sub().txtOut.select(1, 0);
  EXPECT_EQ(rightClick({VK_ESCAPE}), both(false));
}

TEST_F(FrmSubPaneMenu, SearchLooksTheSelectionUp) {
  frmSub& form = open();
  form.txtInput.setText(u"data");
  form.txtOut.select(8, 2);
  ASSERT_EQ(form.txtOut.selText(), u"数据");
  rightClick({VK_DOWN, VK_RETURN});
  ASSERT_TRUE(eventually([&] { return form.txtInput.text() == u"数据"; }));
  EXPECT_EQ(list()[0], u"数据");
  EXPECT_EQ(form.txtOut.text(), u" 数据\r\n data；\r\n datum");
  EXPECT_EQ(form.txtOut.selLength(), 0U);
}

TEST_F(FrmSubPaneMenu, SearchIsNotMisledByTheLineEndOfTheSelection) {
  frmSub& form = open();
  form.txtInput.setText(u"data");
  form.txtOut.select(0, 7);
  ASSERT_EQ(form.txtOut.selText(), u" data\r\n");
  rightClick({VK_DOWN, VK_RETURN});
  ASSERT_TRUE(eventually([&] { return form.txtInput.text() == u" data "; }));
  EXPECT_EQ(list()[0], u"data");
  EXPECT_EQ(form.txtOut.text(), u" data\r\n 数据");
}

TEST_F(FrmSubPaneMenu, SearchTakesAllOfASelectionAcrossLines) {
  frmSub& form = open();
  form.txtInput.setText(u"数据");
  ASSERT_EQ(form.txtOut.text(), u" 数据\r\n data；\r\n datum");
  form.txtOut.select(1, 12);
  ASSERT_EQ(form.txtOut.selText(), u"数据\r\n data；\r\n");
  rightClick({VK_DOWN, VK_RETURN});
  ASSERT_TRUE(eventually([&] { return form.txtInput.text() == u"数据  data； "; }));
  // Looked up as if it had been typed.
  EXPECT_EQ(list(), expectedList(u"数据  data；"));
  EXPECT_EQ(list()[0], u"数据库");
  EXPECT_EQ(form.txtOut.selLength(), 0U);
}

TEST_F(FrmSubPaneMenu, SearchForALineEndAloneChangesNothingButTheBox) {
  frmSub& form = open();
  form.txtInput.setText(u"data");
  const auto before = list();
  form.txtOut.select(5, 2);
  ASSERT_EQ(form.txtOut.selText(), u"\r\n");
  rightClick({VK_DOWN, VK_RETURN});
  ASSERT_TRUE(eventually([&] { return form.txtInput.text() == u" "; }));
  EXPECT_EQ(list(), before);
  EXPECT_EQ(form.txtOut.text(), u" data\r\n 数据");
}

TEST_F(FrmSubPaneMenu, HasItsCaption) { EXPECT_EQ(open().mnuOper.caption(), u"菜单操作"); }

TEST_F(FrmSubPaneMenu, CopyPutsTheSelectionOnTheClipboardAsText) {
  frmSub& form = open();
  form.txtInput.setText(u"data");
  form.txtOut.select(1, 9);
  rightClick({VK_DOWN, VK_DOWN, VK_RETURN});
  EXPECT_TRUE(eventually([] { return clipboardText() == L"data\r\n 数据"; }));
  EXPECT_EQ(form.txtOut.selLength(), 9U);
  EXPECT_EQ(form.txtInput.text(), u"data");
}

TEST_F(FrmSubPaneMenu, CopyClearsTheClipboardOfEverythingElse) {
  frmSub& form = open();
  form.txtInput.setText(u"data");
  form.txtOut.select(1, 4);
  const UINT other = RegisterClipboardFormatW(L"Lexilo test format");
  ASSERT_TRUE(OpenClipboard(form.handle()));
  EmptyClipboard();
  SetClipboardData(other, GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 1));
  CloseClipboard();
  ASSERT_TRUE(IsClipboardFormatAvailable(other));
  rightClick({VK_DOWN, VK_DOWN, VK_RETURN});
  EXPECT_TRUE(eventually([] { return clipboardText() == L"data"; }));
  EXPECT_FALSE(IsClipboardFormatAvailable(other));
}

TEST_F(FrmSubPaneMenu, ABusyClipboardIsToldAfterAMoment) {
  frmSub& form = open();
  form.txtInput.setText(u"data");
  form.txtOut.select(1, 4);
  {
    const ClipboardHolder holder(500);
    rightClick({VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_TRUE(eventually([this] { return boxes.count() == 1; }));
  }
  const auto seen = boxes.take();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_NE(seen[0].text.find(u"剪贴板"), seen[0].text.npos);
  EXPECT_EQ(seen[0].icon, Icon::kError);
}

TEST_F(FrmSubPaneMenu, EscChangesNothing) {
  frmSub& form = open();
  form.txtInput.setText(u"data");
  form.txtOut.select(8, 2);
  rightClick({VK_DOWN, VK_ESCAPE});
  EXPECT_EQ(form.txtInput.text(), u"data");
  EXPECT_EQ(form.txtOut.selLength(), 2U);
}

TEST_F(FrmSubPaneMenu, AClickElsewhereClosesItAndChangesNothing) {
  frmSub& form = open();
  form.txtInput.setText(u"data");
  form.txtOut.select(8, 2);
  setClipboardText(L"before");
  const auto lines = rightClick([] {
    input::key(VK_DOWN);
    injected::click(kNowhere);
  });
  EXPECT_EQ(lines, both(true));
  EXPECT_EQ(form.txtInput.text(), u"data");
  EXPECT_EQ(form.txtOut.selText(), u"数据");
  EXPECT_EQ(clipboardText(), L"before");
}

TEST_F(FrmSubPaneMenu, TheMenuKeyOpensItInsideThePane) {
  open().txtInput.setText(u"data");
  sub().txtOut.setFocus();
  RECT menu{};
  const ModalPoller user([&] {
    HWND window = openMenu();
    if (window == nullptr) return false;
    menu = rectOf(window);
    input::key(VK_ESCAPE);
    return true;
  });
  input::key(VK_F10, {VK_SHIFT});
  ASSERT_TRUE(eventually([&] { return user.done() && openMenu() == nullptr; }));
  const RECT pane = rectOf(sub().txtOut.handle());
  EXPECT_TRUE(PtInRect(&pane, {menu.left, menu.top}));
}

TEST_F(FrmSubPaneMenu, TheMouseOpensItUnderThePointer) {
  open();
  RECT menu{};
  const ModalPoller user([&] {
    HWND window = openMenu();
    if (window == nullptr) return false;
    menu = rectOf(window);
    input::key(VK_ESCAPE);
    return true;
  });
  const POINT point = centreOf(sub().txtOut);
  injected::rightClick(point);
  ASSERT_TRUE(eventually([&] { return user.done() && openMenu() == nullptr; }));
  EXPECT_NEAR(menu.left, point.x, 1);
  EXPECT_NEAR(menu.top, point.y, 1);
}

TEST_F(FrmSubPaneMenu, ALeftClickOpensNoMenu) {
  open();
  injected::click(centreOf(sub().txtOut));
  EXPECT_TRUE(always([] { return openMenu() == nullptr; }, 60));
}

}  // namespace
}  // namespace support
