#include "forms/drag_handle.h"

#include "forms/static_controls.h"
#include "tests/support/window/window_test.h"

namespace support {
namespace {

/// A splitter between two boxes, which note what is dropped on them.
class SplitForm : public FormA {
 public:
  SplitForm() {
    first.move({30, 300, 1500, 2000});
    second.move({1550, 300, 1500, 2000});
    splitter.onMouseDown = [this](forms::TwipPoint) { splitter.beginDrag(); };
    splitter.onDragEnded = [this] { ++ended; };
    first.onDragDrop = [this](forms::Widget& source, forms::TwipPoint at) {
      note("first", source, at);
    };
    second.onDragDrop = [this](forms::Widget& source, forms::TwipPoint at) {
      note("second", source, at);
    };
  }
  forms::DragHandle splitter{*this, forms::DragHandle::Look::kLine, {1530, 300, 20, 2000}};
  std::vector<std::string> drops;
  forms::TwipPoint place;
  int ended = 0;

 private:
  void note(const char* target, const forms::Widget& source, forms::TwipPoint at) {
    EXPECT_EQ(&source, &splitter);
    drops.emplace_back(target);
    place = at;
  }
};

/// Whether the pixels of a control, but for an edge of one pixel, are of one colour now.
bool isPlain(const forms::Widget& widget) {
  RECT client{};
  GetClientRect(widget.handle(), &client);
  HDC dc = GetDC(widget.handle());
  const COLORREF colour = GetPixel(dc, 1, 1);
  bool plain = colour != CLR_INVALID;
  for (int y = 1; plain && y < client.bottom - 1; ++y) {
    for (int x = 1; plain && x < client.right - 1; ++x) plain = GetPixel(dc, x, y) == colour;
  }
  ReleaseDC(widget.handle(), dc);
  return plain;
}

class DragHandleTest : public WindowTest {
 protected:
  static SplitForm& form() { return forms::form<SplitForm>(); }

  /// Presses on the splitter and moves to a point, without letting go.
  static void dragTo(POINT point) {
    injected::moveTo(centreOf(form().splitter));
    forms::doEvents();
    injected::pressLeft();
    ASSERT_TRUE(eventually([] { return form().splitter.isDragged(); }));
    injected::moveTo(point);
    passTime(30);
  }
  static bool ended() {
    return eventually([] { return form().ended > 0; });
  }
};

TEST_F(DragHandleTest, IsDroppedOnTheWidgetBelowThePointer) {
  opened<SplitForm>();
  dragTo(inWidget(form().second, 600, 900));
  injected::releaseLeft();
  ASSERT_TRUE(ended());
  EXPECT_EQ(form().drops, std::vector<std::string>{"second"});
  EXPECT_EQ(form().place.x, 600);
  EXPECT_EQ(form().place.y, 900);
  EXPECT_FALSE(form().splitter.isDragged());
}

TEST_F(DragHandleTest, CanBeDroppedToTheLeftAsWell) {
  opened<SplitForm>();
  dragTo(inWidget(form().first, 450, 150));
  injected::releaseLeft();
  ASSERT_TRUE(ended());
  EXPECT_EQ(form().drops, std::vector<std::string>{"first"});
  EXPECT_EQ(form().place.x, 450);
}

TEST_F(DragHandleTest, FollowsThePointerFromLeftToRight) {
  opened<SplitForm>();
  const RECT before = rectOf(form().splitter.handle());
  const POINT point = inWidget(form().second, 600, 900);
  dragTo(point);
  EXPECT_TRUE(eventually([&] { return rectOf(form().splitter.handle()).left == point.x; }));
  EXPECT_EQ(rectOf(form().splitter.handle()).top, before.top);
  injected::releaseLeft();
  ended();
}

TEST_F(DragHandleTest, DroppedOnNoWidgetRaisesNothing) {
  opened<SplitForm>();
  RECT client{};
  GetClientRect(form().handle(), &client);
  POINT bottom{client.right - 5, client.bottom - 5};
  ClientToScreen(form().handle(), &bottom);
  dragTo(bottom);
  injected::releaseLeft();
  ASSERT_TRUE(ended());
  EXPECT_EQ(form().drops, std::vector<std::string>{});
}

TEST_F(DragHandleTest, DroppedOutsideTheFormRaisesNothing) {
  opened<SplitForm>();
  dragTo(kNowhere);
  injected::releaseLeft();
  ASSERT_TRUE(ended());
  EXPECT_EQ(form().drops, std::vector<std::string>{});
}

TEST_F(DragHandleTest, APressWithoutAMoveDropsNothing) {
  opened<SplitForm>();
  dragTo(centreOf(form().splitter));
  injected::releaseLeft();
  ASSERT_TRUE(ended());
  EXPECT_EQ(form().drops, std::vector<std::string>{});
}

TEST_F(DragHandleTest, LosingTheMouseEndsTheDragWithoutADrop) {
  opened<SplitForm>();
  dragTo(inWidget(form().second, 600, 900));
  ReleaseCapture();
  EXPECT_TRUE(ended());
  EXPECT_FALSE(form().splitter.isDragged());
  injected::releaseLeft();
  passTime(30);
  EXPECT_EQ(form().drops, std::vector<std::string>{});
  EXPECT_EQ(form().ended, 1);
}

TEST_F(DragHandleTest, AToolTipBecomesItsNameAndIsNotDrawn) {
  opened<SplitForm>();
  forms::DragHandle& splitter = form().splitter;
  splitter.move({30, 15, 1500, 270});  // room for letters, beside the boxes
  forms::doEvents();
  UpdateWindow(splitter.handle());
  ASSERT_TRUE(isPlain(splitter));
  splitter.setToolTip(u"拖动以调解窗体宽度");
  // Before any message is handled: the next WM_PAINT would draw over the letters.
  EXPECT_TRUE(isPlain(splitter));
  EXPECT_EQ(forms::windowText(splitter.handle()), u"拖动以调解窗体宽度");
  forms::doEvents();
  EXPECT_TRUE(isPlain(splitter));
}

TEST_F(DragHandleTest, ALineTakesHoldAFewPixelsBesideItself) {
  opened<SplitForm>();
  const RECT line = rectOf(form().splitter.handle());
  const POINT beside{line.left - 2, (line.top + line.bottom) / 2};
  EXPECT_FALSE(form().splitter.grabs(beside));
  form().splitter.setGrabMargin(45);
  EXPECT_TRUE(form().splitter.grabs(beside));
  EXPECT_FALSE(form().splitter.grabs({line.left - 10, beside.y}));
  injected::moveTo(beside);
  injected::pressLeft();
  EXPECT_TRUE(eventually([] { return form().splitter.isDragged(); }));
  injected::releaseLeft();
  EXPECT_TRUE(ended());
}

}  // namespace
}  // namespace support
