#include "forms/column_tree.h"

#include "tests/support/process/controls.h"
#include "tests/support/process/screen.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

class ColumnForm : public FormA {
 public:
  forms::ColumnTree tree{*this, {150, 1000, 7000, 2500}};
};

class ColumnTreeTest : public WindowTest {
 protected:
  ColumnTreeTest() {
    plan<'A'>().design.width = 7600;
    plan<'A'>().design.height = 4500;
    opened<ColumnForm>();
    tree().setFocus();
  }
  static forms::ColumnTree& tree() { return forms::form<ColumnForm>().tree; }
  /// Leaves no row highlighted, so that all are dark on light.
  static void deselect() { SendMessageW(tree().handle(), TVM_SELECTITEM, TVGN_CARET, 0); }

  /// How many columns a row's text takes on the screen, up to its last dark pixel.
  static int columnsShown(int number) {
    RECT row = treeNodeRect(tree().handle(), number - 1).value_or(RECT{});
    const int left = row.left;
    row.right = rectOf(tree().handle()).right - 4;
    const auto pixels = screenPixels(row);
    const int width = row.right - row.left;
    int last = 0;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
      if (GetGValue(pixels[i]) < 100) last = std::max(last, static_cast<int>(i) % width);
    }
    EXPECT_EQ(left, row.left);
    return 1 + (last / tree().columnWidth());
  }
  /// Whether there is a scroll bar below.
  static bool scrolls() {
    return (GetWindowLongPtrW(tree().handle(), GWL_STYLE) & WS_HSCROLL) != 0;
  }
  static SCROLLINFO scrolling(int bar) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(tree().handle(), bar, &info);
    return info;
  }
};

TEST_F(ColumnTreeTest, AHanCharacterTakesExactlyTwoColumns) {
  tree().add(u"M");
  tree().add(std::u16string(20, u'i') + u"M");
  tree().add(std::u16string(20, u' ') + u"M");
  tree().add(std::u16string(20, u'W') + u"M");
  tree().add(std::u16string(10, u'汉') + u"M");
  tree().add(std::u16string(10, u'，') + u"M");
  tree().add(u"汉ii字MM，..汉字汉字汉M");
  deselect();
  ASSERT_TRUE(eventually([] { return columnsShown(1) == 1; }));
  for (const int row : {2, 3, 4, 5, 6}) EXPECT_EQ(columnsShown(row), 21) << row;
  EXPECT_EQ(columnsShown(7), 23);
}

TEST_F(ColumnTreeTest, ColumnsStayStraightAtAnotherResolution) {
  tree().add(u"M");
  tree().add(std::u16string(20, u'W') + u"M");
  tree().add(std::u16string(10, u'汉') + u"M");
  const int before = tree().columnWidth();
  const RECT suggested{40, 40, 1000, 700};
  SendMessageW(forms::form<ColumnForm>().handle(), WM_DPICHANGED, MAKEWPARAM(144, 144),
               reinterpret_cast<LPARAM>(&suggested));
  deselect();
  EXPECT_GT(tree().columnWidth(), before);
  ASSERT_TRUE(eventually([] { return columnsShown(1) == 1; }));
  for (const int row : {2, 3}) EXPECT_EQ(columnsShown(row), 21) << row;
}

TEST_F(ColumnTreeTest, ALineThatIsWiderThanTheViewScrollsToItsEnd) {
  tree().add(std::u16string(150, u'汉'));
  tree().refresh();
  forms::doEvents();
  const SCROLLINFO info = scrolling(SB_HORZ);
  EXPECT_GE(info.nMax, 150 * 2 * tree().columnWidth());
  EXPECT_EQ(info.nPos, 0);
  input::key(VK_RIGHT);
  EXPECT_TRUE(eventually([] { return scrolling(SB_HORZ).nPos > 0; }));
  input::key(VK_LEFT);
  EXPECT_TRUE(eventually([] { return scrolling(SB_HORZ).nPos == 0; }));
}

TEST_F(ColumnTreeTest, ANewTextScrollsAsFarAsItIsLong) {
  tree().add(u"short");
  forms::doEvents();
  tree().setText(1, std::u16string(300, u'm'));
  EXPECT_EQ(tree().count(), 1U);
  forms::doEvents();
  EXPECT_TRUE(scrolls());
  EXPECT_GE(scrolling(SB_HORZ).nMax, 300 * tree().columnWidth());
  tree().setText(1, u"short");
  forms::doEvents();
  EXPECT_FALSE(scrolls());
}

TEST_F(ColumnTreeTest, TheWidestOfManyTextsSaysHowFarItScrolls) {
  for (int i = 0; i < 50; ++i) tree().add(u"short");
  EXPECT_FALSE(scrolls());
  const auto fill = [](std::size_t widest, std::size_t characters) {
    const forms::ScopedRepaintHold held(tree());
    for (std::size_t row = 1; row <= tree().count(); ++row) tree().setText(row, u"short");
    tree().setText(widest, std::u16string(characters, u'词'));
  };
  for (const std::size_t widest : {30, 1, 50}) {
    for (const std::size_t characters : {200, 150, 300}) {
      fill(widest, characters);
      forms::doEvents();
      const int pixels = static_cast<int>(characters) * 2 * tree().columnWidth();
      EXPECT_GE(scrolling(SB_HORZ).nMax, pixels);
      EXPECT_LE(scrolling(SB_HORZ).nMax, pixels + 100);
    }
  }
  fill(40, 2);
  EXPECT_FALSE(scrolls());
  fill(40, 200);
  tree().remove(40);
  EXPECT_FALSE(scrolls());
  fill(1, 200);
  tree().remove(1);
  EXPECT_FALSE(scrolls());
  fill(1, 200);
  tree().clear();
  EXPECT_FALSE(scrolls());
  tree().add(std::u16string(200, u'词'));
  EXPECT_TRUE(scrolls());
}

TEST_F(ColumnTreeTest, ItScrollsAsFarAtAnotherResolution) {
  tree().add(u"short");
  tree().add(std::u16string(200, u'词'));
  const RECT suggested{40, 40, 1000, 700};
  SendMessageW(forms::form<ColumnForm>().handle(), WM_DPICHANGED, MAKEWPARAM(144, 144),
               reinterpret_cast<LPARAM>(&suggested));
  forms::doEvents();
  EXPECT_GE(scrolling(SB_HORZ).nMax, 200 * 2 * tree().columnWidth());
  tree().setText(2, u"short");
  forms::doEvents();
  EXPECT_FALSE(scrolls());
}

TEST_F(ColumnTreeTest, NewTextsLeaveTheFirstRowOnTop) {
  for (int i = 0; i < 50; ++i) tree().add(u"short");
  tree().select(50);
  {
    const forms::ScopedRepaintHold held(tree());
    for (std::size_t row = 1; row <= tree().count(); ++row) tree().setText(row, u"something wider");
    tree().scrollToBeginning();
  }
  EXPECT_EQ(tree().selected(), 50U);
  EXPECT_EQ(scrolling(SB_VERT).nPos, 0);
  const RECT first = treeNodeRect(tree().handle(), 0).value_or(RECT{});
  EXPECT_EQ(first.top, rectOf(tree().handle()).top + GetSystemMetrics(SM_CYEDGE));
}

TEST_F(ColumnTreeTest, TheControlReturnsTheTexts) {
  tree().add(u"first");
  tree().add(u"second");
  tree().setText(1, u"new");
  EXPECT_EQ(treeTexts(tree().handle()), (std::vector<std::wstring>{L"new", L"second"}));
}

TEST_F(ColumnTreeTest, ANewTextKeepsTheSelection) {
  for (const char16_t* text : {u"a", u"b", u"c"}) tree().add(text);
  tree().select(2);
  tree().setText(2, u"new");
  tree().setText(1, u"first");
  EXPECT_EQ(tree().selected(), 2U);
  EXPECT_EQ(treeTexts(tree().handle()), (std::vector<std::wstring>{L"first", L"new", L"c"}));
}

TEST_F(ColumnTreeTest, ScrollsToTheBeginningInBothDirectionsAndKeepsTheSelection) {
  for (int i = 0; i < 100; ++i) tree().add(std::u16string(200, u'x'));
  tree().select(100);
  SendMessageW(tree().handle(), WM_HSCROLL, SB_PAGERIGHT, 0);
  forms::doEvents();
  ASSERT_GT(scrolling(SB_VERT).nPos, 0);
  ASSERT_GT(scrolling(SB_HORZ).nPos, 0);
  tree().scrollToBeginning();
  EXPECT_EQ(tree().selected(), 100U);
  EXPECT_EQ(scrolling(SB_VERT).nPos, 0);
  EXPECT_EQ(scrolling(SB_HORZ).nPos, 0);
}

}  // namespace
}  // namespace support
