#include "tests/support/window/frm_sub_test.h"

namespace support {
namespace {

class FrmSubChoosing : public FrmSubTest {
 protected:
  /// Waits until the pane shows the meanings of a list entry.
  static bool shows(std::size_t node) {
    const std::u16string expected = meaningOf(list()[node - 1]);
    return eventually([&] { return sub().txtOut.text() == expected; });
  }
};

TEST_F(FrmSubChoosing, AClickShowsTheMeaning) {
  open();
  const auto before = list();
  injected::click(entryPoint(3));
  EXPECT_TRUE(shows(3));
  EXPECT_EQ(sub().TreeView1.selected(), 3U);
  EXPECT_EQ(list(), before);
}

TEST_F(FrmSubChoosing, AClickOnTheSelectedWordShowsItAgain) {
  open();
  injected::click(entryPoint(2));
  ASSERT_TRUE(shows(2));
  sub().txtOut.setText({});
  const POINT point = entryPoint(2);
  injected::click({point.x + 12, point.y});
  EXPECT_TRUE(shows(2));
}

TEST_F(FrmSubChoosing, AClickMovesTheFocusToTheList) {
  open();
  injected::click(entryPoint(2));
  EXPECT_TRUE(eventually([] { return GetFocus() == sub().TreeView1.handle(); }));
}

TEST_F(FrmSubChoosing, DownGoesToTheListAndItsKeysChoose) {
  open();
  input::key(VK_DOWN);
  ASSERT_TRUE(eventually([] { return GetFocus() == sub().TreeView1.handle(); }));
  EXPECT_EQ(sub().TreeView1.selected(), 1U);
  input::key(VK_DOWN);
  ASSERT_TRUE(shows(2));
  input::key(VK_DOWN);
  ASSERT_TRUE(shows(3));
  input::key(VK_UP);
  EXPECT_TRUE(shows(2));
}

TEST_F(FrmSubChoosing, EnterShowsTheSelectedWord) {
  open();
  input::key(VK_DOWN);
  ASSERT_TRUE(eventually([] { return GetFocus() == sub().TreeView1.handle(); }));
  sub().txtOut.setText({});
  input::key(VK_RETURN);
  EXPECT_TRUE(shows(1));
}

TEST_F(FrmSubChoosing, TheListsSelectionComesWithANewList) {
  open();
  injected::click(entryPoint(5));
  ASSERT_TRUE(shows(5));
  sub().txtInput.setText(u"data");
  EXPECT_EQ(sub().TreeView1.selected(), 1U);
}

TEST_F(FrmSubChoosing, AChineseWordOfTheListShowsItsEnglish) {
  open().txtInput.setText(u"数");
  const auto words = list();
  const auto place = std::find(words.begin(), words.end(), u"数据");
  ASSERT_NE(place, words.end());
  const auto number = static_cast<std::size_t>(place - words.begin()) + 1;
  sub().TreeView1.select(number);
  sub().TreeView1.setFocus();
  input::key(VK_RETURN);
  EXPECT_TRUE(eventually([] { return sub().txtOut.text() == u" 数据\r\n data；\r\n datum"; }));
}

TEST_F(FrmSubChoosing, TabGoesThroughTheWindow) {
  frmSub& form = open();
  const std::array<HWND, 4> order{form.TreeView1.handle(), form.txtOut.handle(),
                                  form.cmdExit.handle(), form.txtInput.handle()};
  for (HWND next : order) {
    input::key(VK_TAB);
    EXPECT_TRUE(eventually([&] { return GetFocus() == next; }));
  }
}

}  // namespace
}  // namespace support
