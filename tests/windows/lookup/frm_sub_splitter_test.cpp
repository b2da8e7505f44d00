#include <commctrl.h>

#include "tests/support/window/frm_sub_test.h"
#include "tests/support/window/open_menu.h"

namespace support {
namespace {

class FrmSubSplitter : public FrmSubTest {
 protected:
  /// Opens the window in sizes that are stored before.
  frmSub& openWith(int width, int height, const wchar_t* listWidth) {
    return openSized(
        [=] {
          settings::write(L"WindowWidth", std::to_wstring(width));
          settings::write(L"WindowHeight", std::to_wstring(height));
          settings::write(L"TreeWidth", listWidth);
        },
        width, height);
  }

  /// Drags the splitter to a point and lets go.
  static void dropAt(POINT point) {
    injected::moveTo(centreOf(sub().Image1));
    forms::doEvents();
    injected::pressLeft();
    ASSERT_TRUE(eventually([] { return sub().Image1.isDragged(); }));
    injected::moveTo(point);
    passTime(20);
    injected::releaseLeft();
    ASSERT_TRUE(eventually([] { return !sub().Image1.isDragged(); }));
  }

  /// Moves the pointer to a place beside the splitter's line, in pixels to the right, or onto it,
  /// and leaves it there.
  static void restBesideLine(int beside) {
    const RECT line = rectOf(sub().Image1.handle());
    const POINT place{line.left + beside, centreOf(line).y};
    injected::moveTo({place.x, place.y - 20});
    forms::doEvents();
    injected::moveTo(place);
  }

  /// Whether the splitter's tool tip is on the screen, beside the pointer.
  static bool toolTipIsShown() {
    HWND tip = nullptr;
    while ((tip = FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr)) != nullptr) {
      if (GetWindow(tip, GW_OWNER) == sub().handle() && IsWindowVisible(tip) != FALSE) break;
    }
    return tip != nullptr && forms::windowText(tip) == u"拖动以调解窗体宽度";
  }

  static void expectPlaced(int listWidth) {
    const frmSub& form = sub();
    EXPECT_EQ(form.TreeView1.width(), listWidth);
    EXPECT_EQ(form.TreeView1.left(), 30);
    EXPECT_EQ(form.TreeView1.top(), 600);
    EXPECT_EQ(form.Image1.left(), listWidth + 30);
    EXPECT_EQ(pixelBox(form.Image1).left, forms::toPixels(listWidth + 30, 96));
    EXPECT_EQ(form.txtOut.left(), listWidth + 50);
    EXPECT_EQ(form.txtOut.width(), form.width() - listWidth - 200);
    EXPECT_EQ(form.TreeView1.height(), form.height() - 1000);
    EXPECT_EQ(form.Image1.height(), form.height() - 1000);
  }
};

TEST_F(FrmSubSplitter, DroppedOnTheListNearItsLeftEdgeLeaves1600) {
  openWith(5000, 4000, L"2100");
  dropAt(inWidget(sub().TreeView1, 900, 1500));
  expectPlaced(1600);
}

TEST_F(FrmSubSplitter, DroppedOnTheListItTakesOff30Twips) {
  openWith(5000, 4000, L"2100");
  dropAt(inWidget(sub().TreeView1, 1800, 1500));
  expectPlaced(1770);
}

TEST_F(FrmSubSplitter, JustPast1600ItComesOutBelow) {
  openWith(5000, 4000, L"2100");
  dropAt(inWidget(sub().TreeView1, 1605, 1500));
  expectPlaced(1575);
}

TEST_F(FrmSubSplitter, DroppedOnThePaneItWidensTheList) {
  openWith(9000, 4000, L"1800");
  dropAt(inWidget(sub().txtOut, 600, 1500));
  expectPlaced(2400);
}

TEST_F(FrmSubSplitter, AWindowOf5000StopsAt2150) {
  openWith(5000, 4000, L"1800");
  dropAt(inWidget(sub().txtOut, 1200, 1500));
  expectPlaced(2150);
}

TEST_F(FrmSubSplitter, AWindowOf9000StopsAt3000) {
  openWith(9000, 4000, L"1800");
  dropAt(inWidget(sub().txtOut, 3000, 1500));
  expectPlaced(3000);
}

TEST_F(FrmSubSplitter, DroppedElsewhereNothingChanges) {
  openWith(5000, 4000, L"2100");
  dropAt(centreOf(sub().cmdExit));
  expectPlaced(2100);
  dropAt(centreOf(sub().Label1));
  expectPlaced(2100);
  dropAt(kNowhere);
  expectPlaced(2100);
}

TEST_F(FrmSubSplitter, APressWithoutAMoveChangesNothing) {
  openWith(5000, 4000, L"2100");
  dropAt(centreOf(sub().Image1));
  expectPlaced(2100);
}

TEST_F(FrmSubSplitter, DropsOfAnythingElseChangeNothing) {
  openWith(5000, 4000, L"2100");
  sub().TreeView1.onDragDrop.raise(sub().txtInput, {1800, 100});
  sub().txtOut.onDragDrop.raise(sub().txtInput, {300, 100});
  expectPlaced(2100);
}

TEST_F(FrmSubSplitter, AClickBesideTheDragStillChoosesWords) {
  openWith(5000, 4000, L"2100");
  dropAt(inWidget(sub().TreeView1, 1800, 1500));
  injected::click(entryPoint(2));
  EXPECT_TRUE(eventually([] { return sub().TreeView1.selected() == 2; }));
}

TEST_F(FrmSubSplitter, CanBeTakenHoldOfBesideItsThinLine) {
  frmSub& form = openWith(5000, 4000, L"2100");
  const POINT target = inWidget(form.TreeView1, 1800, 1500);
  for (const int beside : {-2, 3}) {
    const RECT line = rectOf(form.Image1.handle());
    injected::moveTo({line.left + beside, centreOf(line).y});
    forms::doEvents();
    injected::pressLeft();
    EXPECT_TRUE(eventually([&] { return form.Image1.isDragged(); }));
    injected::releaseLeft();
    EXPECT_TRUE(eventually([&] { return !form.Image1.isDragged(); }));
  }
  const RECT line = rectOf(form.Image1.handle());
  injected::moveTo({line.left - 2, target.y});
  injected::pressLeft();
  forms::doEvents();
  // As far from the target as it is taken hold of beside the line.
  injected::moveTo({target.x - 2, target.y});
  forms::doEvents();
  injected::releaseLeft();
  EXPECT_TRUE(eventually([&] { return form.TreeView1.width() == 1770; }));
}

TEST_F(FrmSubSplitter, TheMarginInWhichItIsTakenIsNoPartOfTheDrop) {
  // Wherever it is taken hold of, a move that leads one pixel left of the line drops it there.
  for (const int beside : {-3, -1, 0, 3}) {
    SCOPED_TRACE(beside);
    frmSub& form = openWith(5000, 4000, L"2100");
    const RECT line = rectOf(form.Image1.handle());
    ASSERT_EQ(line.right - line.left, 1);
    const LONG listLeft = rectOf(form.TreeView1.handle()).left;
    const POINT press{line.left + beside, centreOf(line).y};
    injected::moveTo(press);
    forms::doEvents();
    injected::pressLeft();
    ASSERT_TRUE(eventually([&] { return form.Image1.isDragged(); }));
    injected::moveTo({press.x - 1, press.y + 5});
    passTime(20);
    EXPECT_EQ(rectOf(form.Image1.handle()).left, line.left - 1);
    injected::releaseLeft();
    ASSERT_TRUE(eventually([&] { return !form.Image1.isDragged(); }));
    EXPECT_EQ(form.TreeView1.width(), forms::toTwips(line.left - 1 - listLeft, 96) - 30);
  }
}

TEST_F(FrmSubSplitter, AnyButtonDragsItAndOpensNoMenu) {
  frmSub& form = openWith(5000, 4000, L"2100");
  injected::moveTo(centreOf(form.Image1));
  injected::pressRight();
  ASSERT_TRUE(eventually([&] { return form.Image1.isDragged(); }));
  injected::moveTo(inWidget(form.txtOut, 15, 1500));
  forms::doEvents();
  injected::releaseRight();
  ASSERT_TRUE(eventually([&] { return !form.Image1.isDragged(); }));
  expectPlaced(2115);
  EXPECT_EQ(openMenu(), nullptr);
}

TEST_F(FrmSubSplitter, TwoDragsInQuickSuccessionBothCount) {
  frmSub& form = openWith(5000, 4000, L"2100");
  dropAt(inWidget(form.txtOut, 15, 1500));
  expectPlaced(2115);
  dropAt(inWidget(form.txtOut, 15, 1500));
  expectPlaced(2130);
}

TEST_F(FrmSubSplitter, APressShowsThePointerWithoutAMoveBeforeIt) {
  frmSub& form = openWith(5000, 4000, L"2100");
  HCURSOR sizing = LoadCursorW(nullptr, IDC_SIZEWE);
  injected::moveTo(centreOf(form.Image1));
  ASSERT_TRUE(eventually([&] { return GetCursor() == sizing; }));
  form.setMousePointer(nullptr);
  ASSERT_NE(GetCursor(), sizing);
  // Not by the hand, whose presses may come with moves.
  SendMessageW(form.Image1.handle(), WM_LBUTTONDOWN, MK_LBUTTON, 0);
  EXPECT_EQ(GetCursor(), sizing);
  EXPECT_TRUE(form.Image1.isDragged());
  SendMessageW(form.Image1.handle(), WM_LBUTTONUP, 0, 0);
  EXPECT_FALSE(form.Image1.isDragged());
}

TEST_F(FrmSubSplitter, ThePointerShowsWhereItCanBeDragged) {
  frmSub& form = openWith(5000, 4000, L"2100");
  HCURSOR sizing = LoadCursorW(nullptr, IDC_SIZEWE);
  injected::moveTo(centreOf(form.Image1));
  EXPECT_TRUE(eventually([&] { return GetCursor() == sizing; }));
  EXPECT_EQ(form.Image1.toolTip(), u"拖动以调解窗体宽度");
  for (const forms::Widget* widget : std::initializer_list<const forms::Widget*>{
           &form.Label1, &form.txtInput, &form.cmdExit, &form.TreeView1, &form.txtOut}) {
    injected::moveTo(centreOf(form.Image1));
    ASSERT_TRUE(eventually([&] { return GetCursor() == sizing; }));
    injected::moveTo(centreOf(*widget));
    EXPECT_TRUE(eventually([&] { return GetCursor() != sizing; }));
  }
  injected::moveTo(centreOf(form.Image1));
  ASSERT_TRUE(eventually([&] { return GetCursor() == sizing; }));
  POINT empty{3, 3};
  ClientToScreen(form.handle(), &empty);
  injected::moveTo(empty);
  EXPECT_TRUE(eventually([&] { return GetCursor() == LoadCursorW(nullptr, IDC_ARROW); }));
}

TEST_F(FrmSubSplitter, ClosingTheWindowGivesThePointerItsOwnShapeBack) {
  frmSub& form = openWith(5000, 4000, L"2100");
  injected::moveTo(centreOf(form.Image1));
  ASSERT_TRUE(eventually([] { return GetCursor() == LoadCursorW(nullptr, IDC_SIZEWE); }));
  // The keys close it, so that the pointer stays where it is.
  input::key(VK_F4, {VK_MENU});
  ASSERT_TRUE(eventually([] { return !forms::isLoaded<frmSub>(); }));
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(FrmSubSplitter, ItsToolTipAppearsWhereThePointerRestsOnIt) {
  openWith(5000, 4000, L"2100");
  restBesideLine(0);
  EXPECT_TRUE(eventually(toolTipIsShown));
}

TEST_F(FrmSubSplitter, ItsToolTipAppearsWhereItCanBeTakenHoldOfBesideItsLine) {
  openWith(5000, 4000, L"2100");
  for (const int beside : {-2, 3}) {
    SCOPED_TRACE(beside);
    restBesideLine(beside);
    EXPECT_TRUE(eventually(toolTipIsShown));
    injected::moveTo(centreOf(sub().txtOut));
    EXPECT_TRUE(eventually([] { return !toolTipIsShown(); }));
  }
}

}  // namespace
}  // namespace support
