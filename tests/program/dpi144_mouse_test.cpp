// What a user does with the mouse where the system shows everything at one and a half times the
// size.
#include <optional>

#include "tests/program/dpi144_fixture.h"
#include "tests/support/process/controls.h"
#include "tests/support/process/input.h"
#include "tests/support/process/lexilo.h"
#include "tests/support/process/popup_menu.h"
#include "tests/support/process/quick_lookup_sizes.h"

namespace support {
namespace {

class Dpi144Mouse : public Dpi144 {
 protected:
  Dpi144Mouse() { lexilo.waitUntilSeen(); }

  /// Opens the quick lookup window, which is to have these sizes then. Once more where the window
  /// manager, which answers late that the window was shown, gives it back its earlier size.
  [[nodiscard]] QuickLookup openIn(const Sizes& sizes) const {
    std::optional<QuickLookup> window;
    const auto open = [&] {
      if (window) window->close();
      settings::write(L"WindowWidth", std::to_wstring(sizes.width));
      settings::write(L"WindowHeight", std::to_wstring(sizes.height));
      settings::write(L"TreeWidth", std::to_wstring(sizes.list));
      window = lexilo.openQuickLookupAtA();
    };
    actUntil("the stored sizes", open, [&] { return alike(sizesOf(*window), sizes); });
    return window.value();
  }

  /// The client area of a window that is `twips` wide and high.
  static SIZE clientPixels(SIZE twips) {
    return {pixels(twips.cx - forms::kFrameWidth), pixels(twips.cy - forms::kFrameHeight)};
  }

  /// Drags the quick lookup window by its corner to a size in twips, and sees to it that it has
  /// `sizes` then, and its list and pane with it. One drag a window: a window manager may start the
  /// next one from another size than the one that the window gave itself in this one.
  void expectAfterDragTo(SIZE dragged, SIZE sizes) const {
    const QuickLookup window = openIn({5000, 4000, 2000});
    dragCorner(window, clientPixels(dragged), {sizes.cx, sizes.cy, 2000});
    const SIZE client = sizeOf(clientRectOf(window.window()));
    EXPECT_EQ(client.cx, clientPixels(sizes).cx);
    EXPECT_EQ(client.cy, clientPixels(sizes).cy);
    waitFor("the pane to fill it", [&] {
      return std::abs(rectOf(window.pane()).bottom - clientRectOf(window.window()).bottom) <= 1;
    });
    const SIZE list = sizeOf(rectOf(window.list()));
    const SIZE pane = sizeOf(rectOf(window.pane()));
    EXPECT_EQ(list.cx, pixels(2000));
    EXPECT_NEAR(list.cy, pixels(sizes.cy - 1000), 1);
    EXPECT_NEAR(pane.cx, pixels(sizes.cx - 2000 - 200), 1);
    EXPECT_NEAR(pane.cy, pixels(sizes.cy - 1000), 1);
  }

  /// Drops the splitter on the pane, `x` twips from its left edge, and sees to it that list,
  /// splitter and pane stand as a list of `list` twips has them.
  static void expectAfterDropOnPane(const QuickLookup& window, int x, int list) {
    expectAfterDropAt(window, rectOf(window.pane()).left + pixels(x), list);
  }
  /// The same for the list.
  static void expectAfterDropOnList(const QuickLookup& window, int x, int list) {
    expectAfterDropAt(window, rectOf(window.list()).left + pixels(x), list);
  }

  const Lexilo lexilo{AppFolder::withFullDictionary()};

 private:
  static void expectAfterDropAt(const QuickLookup& window, LONG place, int list) {
    const int width = sizesOf(window).width;
    dragSplitter(window, place,
                 [&](const Sizes& sizes) { return std::abs(sizes.list - list) < 10; });
    const RECT client = clientRectOf(window.window());
    // The pane is placed last.
    waitFor("the pane to stand beside the splitter",
            [&] { return rectOf(window.pane()).left - client.left == pixels(50 + list); });
    EXPECT_EQ(window.splitter().left - client.left, pixels(30 + list));
    const RECT shown = rectOf(window.list());
    const RECT pane = rectOf(window.pane());
    EXPECT_EQ(shown.left - client.left, pixels(30));
    EXPECT_EQ(shown.right - client.left, pixels(30 + list));
    EXPECT_NEAR(pane.right - client.left, pixels(width - 150), 1);
  }
};

TEST_F(Dpi144Mouse, TheToolbarsCornerJumpsToThePointerAndLaterItsGripIsKept) {
  HWND toolbar = lexilo.toolbar();
  const RECT before = rectOf(toolbar);
  input::drag(centreOf(lexilo.grip()), {500, 400});
  const RECT there{500, 400, 500 + before.right - before.left, 400 + pixels(375)};
  waitFor("the toolbar's corner to be where it was dragged", [&] {
    const RECT now = rectOf(toolbar);
    return EqualRect(&now, &there) != FALSE;
  });
  for (const POINT target : {POINT{300, 600}, POINT{800, 200}}) {
    RECT expected{};
    const auto drag = [&] {
      // Near the grip's lower right corner, where a place in other units would be another.
      const RECT grip = lexilo.grip();
      const POINT held{grip.right - 3, grip.bottom - 5};
      expected = rectOf(toolbar);
      OffsetRect(&expected, target.x - held.x, target.y - held.y);
      input::drag(held, target);
    };
    actUntil("the toolbar to be where it was dragged", drag, [&] {
      const RECT now = rectOf(toolbar);
      return EqualRect(&now, &expected) != FALSE;
    });
  }
}

TEST_F(Dpi144Mouse, ThePanesMenuOpensAtThePointer) {
  const QuickLookup window = openIn({6000, 5000, 2000});
  const RECT pane = rectOf(window.pane());
  for (const auto& [x, y] : {std::pair{300, 600}, {2400, 3000}}) {
    const POINT place{pane.left + pixels(x), pane.top + pixels(y)};
    input::rightClick(place);
    const RECT menu = rectOf(popup_menu::waitForMenu(lexilo.process()));
    EXPECT_EQ(menu.left, place.x);
    EXPECT_EQ(menu.top, place.y);
    popup_menu::dismiss(lexilo.process());
  }
}

TEST_F(Dpi144Mouse, AQuickLookupWindowOf3600By2905TwipsStays) {
  expectAfterDragTo({3600, 2905}, {3600, 2905});
}

TEST_F(Dpi144Mouse, AQuickLookupWindowBelow3600TwipsWideSnapsTo3500) {
  expectAfterDragTo({3580, 3305}, {3500, 3305});
}

TEST_F(Dpi144Mouse, AQuickLookupWindowBelow2900TwipsHighSnapsTo2800) {
  expectAfterDragTo({4000, 2885}, {4000, 2800});
}

TEST_F(Dpi144Mouse, AQuickLookupWindowTooSmallBothWaysSnapsBothWays) {
  expectAfterDragTo({3000, 2500}, {3500, 2800});
}

TEST_F(Dpi144Mouse, TheSplitterDroppedOnThePaneWidensTheList) {
  const QuickLookup window = openIn({9000, 4000, 1800});
  expectAfterDropOnPane(window, 600, 1800 + 600);
}

TEST_F(Dpi144Mouse, TheSplitterDroppedOnThePaneStopsAtItsLimit) {
  // (5000 - 3500) / 3 + 1650
  expectAfterDropOnPane(openIn({5000, 4000, 1800}), 1200, 2150);
}

TEST_F(Dpi144Mouse, InAWideWindowTheSplitterStopsAt3000) {
  expectAfterDropOnPane(openIn({9000, 4000, 1800}), 3000, 3000);
}

TEST_F(Dpi144Mouse, TheSplitterDroppedOnTheListTakesOff30Twips) {
  expectAfterDropOnList(openIn({5000, 4000, 2100}), 1800, 1770);
}

}  // namespace
}  // namespace support
