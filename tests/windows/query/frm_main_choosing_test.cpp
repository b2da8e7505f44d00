#include "tests/support/process/clipboard.h"
#include "tests/support/window/query_test.h"

namespace support {
namespace {

class FrmMainChoosing : public QueryTest {
 protected:
  static bool focusOn(const forms::Widget& widget) {
    return eventually([&] { return GetFocus() == widget.handle(); });
  }
  static bool chosen(std::u16string_view table) {
    return eventually([&] { return form().selectedTable() == table; });
  }
};

TEST_F(FrmMainChoosing, AClickChoosesTheDictionary) {
  open();
  EXPECT_EQ(form().lastClicked(), 0);
  injected::click(nodePoint(form().TreeView1, 1));
  EXPECT_TRUE(chosen(u"chem"));
  EXPECT_EQ(form().lastClicked(), 1);
  EXPECT_EQ(form().TreeView1.selected(), 1U);
  easy(u"heat");
  EXPECT_EQ(lines().size(), 2U);
}

TEST_F(FrmMainChoosing, ARightClickChoosesNothing) {
  open();
  injected::rightClick(nodePoint(form().TreeView1, 1));
  passTime(60);
  EXPECT_EQ(form().selectedTable(), u"med");
}

TEST_F(FrmMainChoosing, ANodeThatIsNotSelectedChangesNothing) {
  open();
  form().TreeView1.onNodeClick.raise(1);
  EXPECT_EQ(form().selectedTable(), u"med");
  EXPECT_EQ(form().lastClicked(), 0);
}

TEST_F(FrmMainChoosing, MovingTheHighlightChoosesToo) {
  open();
  form().TreeView1.setFocus();
  EXPECT_EQ(form().selectedTable(), u"med");
  input::key(VK_UP);
  EXPECT_TRUE(chosen(u"comp"));
  input::key(VK_HOME);
  EXPECT_TRUE(chosen(u"chem"));
  input::key(VK_END);
  EXPECT_TRUE(chosen(u"med"));
  EXPECT_EQ(form().lastClicked(), 3);
}

TEST_F(FrmMainChoosing, EnterSearchesFromTheBoxAndFromBothTrees) {
  frmMain& window = open();
  input::type(L"liver");
  input::key(VK_RETURN);
  ASSERT_TRUE(eventually([] { return lines().size() == 1; }));
  window.txtInput.setText(u"heart");
  window.TreeView1.setFocus();
  input::key(VK_RETURN);
  ASSERT_TRUE(eventually([] { return lines().size() == 3; }));
  window.txtInput.setText(u"liver");
  window.TreeView2.setFocus();
  input::key(VK_RETURN);
  EXPECT_TRUE(eventually([] { return lines().size() == 1; }));
}

TEST_F(FrmMainChoosing, EnterOnAButtonPressesThatButton) {
  frmMain& window = open();
  window.txtInput.setText(u"heart");
  window.Command1.setFocus();
  input::key(VK_RETURN);
  EXPECT_TRUE(eventually([] { return lines().size() == 4; }));
}

TEST_F(FrmMainChoosing, TabGoesThroughTheWindow) {
  frmMain& window = open();
  for (const forms::Widget* next : std::initializer_list<const forms::Widget*>{
           &window.cmdOK, &window.Command1, &window.cmdSpc, &window.TreeView1, &window.TreeView2,
           &window.txtInput}) {
    input::key(VK_TAB);
    EXPECT_TRUE(focusOn(*next));
  }
}

TEST_F(FrmMainChoosing, EscReturnsToTheBox) {
  frmMain& window = open();
  easy(u"heart");
  window.TreeView2.setFocus();
  input::key(VK_ESCAPE);
  EXPECT_TRUE(focusOn(window.txtInput));
  EXPECT_TRUE(forms::isLoaded<frmMain>());
}

TEST_F(FrmMainChoosing, TheArrowKeysGoThroughTheLines) {
  frmMain& window = open();
  easy(u"heart");
  window.TreeView2.setFocus();
  input::key(VK_HOME);
  ASSERT_TRUE(eventually([&] { return window.TreeView2.selected() == 1; }));
  input::key(VK_DOWN);
  EXPECT_TRUE(eventually([&] { return window.TreeView2.selected() == 2; }));
  EXPECT_EQ(form().selectedTable(), u"med");
}

TEST_F(FrmMainChoosing, CtrlCCopiesTheLine) {
  frmMain& window = open();
  easy(u"heart");
  injected::click(nodePoint(window.TreeView2, 2));
  ASSERT_TRUE(eventually([&] { return window.TreeView2.selected() == 2; }));
  input::key('C', {VK_CONTROL});
  EXPECT_TRUE(eventually([] { return clipboardText() == L"heart beat       心搏"; }));
}

TEST_F(FrmMainChoosing, CtrlCCopiesTheDictionarysName) {
  frmMain& window = open();
  setClipboardText(L"before");
  window.TreeView1.setFocus();
  input::key('C', {VK_CONTROL});
  const std::u16string& name = window.TreeView1.text(window.TreeView1.selected());
  EXPECT_TRUE(
      eventually([&] { return clipboardText() == std::wstring(name.begin(), name.end()); }));
}

TEST_F(FrmMainChoosing, BackInTheBoxItsTextIsSelected) {
  frmMain& window = open();
  window.txtInput.setText(u"heart");
  const auto selected = [&] {
    return GetFocus() == window.txtInput.handle() &&
           SendMessageW(window.txtInput.handle(), EM_GETSEL, 0, 0) == MAKELONG(0, 5);
  };
  window.TreeView2.setFocus();
  input::key(VK_ESCAPE);
  EXPECT_TRUE(eventually(selected));
  SendMessageW(window.txtInput.handle(), EM_SETSEL, 5, 5);
  opened<FormA>();
  window.show();
  awaitActive(window);
  EXPECT_TRUE(eventually(selected));
}

TEST_F(FrmMainChoosing, CtrlCWithoutALineCopiesNothing) {
  frmMain& window = open();
  setClipboardText(L"before");
  window.TreeView2.setFocus();
  input::key('C', {VK_CONTROL});
  passTime(60);
  EXPECT_EQ(clipboardText(), L"before");
}

}  // namespace
}  // namespace support
