// The quick lookup window's size and layout, changed by the user and kept.
#include <gtest/gtest.h>

#include <string>

#include "forms/geometry.h"
#include "tests/support/process/input.h"
#include "tests/support/process/lexilo.h"
#include "tests/support/process/message_box.h"
#include "tests/support/process/settings.h"

namespace support {
namespace {

/// Sizes in twips, as the settings keep them.
struct Sizes {
  int width = 0;
  int height = 0;
  int list = 0;
  bool operator==(const Sizes&) const = default;
};

void PrintTo(const Sizes& sizes, std::ostream* out) {
  *out << sizes.width << " x " << sizes.height << ", list " << sizes.list;
}

Sizes sizesOf(const QuickLookup& window) {
  const int dpi = static_cast<int>(GetDpiForWindow(window.window()));
  const SIZE client = sizeOf(clientRectOf(window.window()));
  return {forms::toTwips(client.cx, dpi) + forms::kFrameWidth,
          forms::toTwips(client.cy, dpi) + forms::kFrameHeight,
          forms::toTwips(sizeOf(rectOf(window.list())).cx, dpi)};
}

Sizes savedSizes() {
  return {std::stoi(settings::read(L"WindowWidth")), std::stoi(settings::read(L"WindowHeight")),
          std::stoi(settings::read(L"TreeWidth"))};
}

void store(const Sizes& sizes) {
  settings::write(L"WindowWidth", std::to_wstring(sizes.width));
  settings::write(L"WindowHeight", std::to_wstring(sizes.height));
  settings::write(L"TreeWidth", std::to_wstring(sizes.list));
}

/// Whether two sizes are the same but for the rounding of twips to pixels.
bool alike(const Sizes& one, const Sizes& other) {
  return std::abs(one.width - other.width) < 15 && std::abs(one.height - other.height) < 15 &&
         std::abs(one.list - other.list) < 15;
}

class SizesKept : public ::testing::Test {
 protected:
  SizesKept() { settings::clear(); }
  ~SizesKept() override { settings::clear(); }
};

/// Drags the window's lower right corner by the window manager's frame, below and beside the client
/// area, to where that would have `pixels`, and waits until the window has these sizes.
void dragCorner(const QuickLookup& window, SIZE pixels, const Sizes& sizes) {
  const auto place = [](LONG x, LONG y) { return std::to_string(x) + " " + std::to_string(y); };
  const auto drag = [&] {
    const RECT client = clientRectOf(window.window());
    runBelow("xdotool mousemove " + place(client.right - 2, client.bottom + 2) +
             " mousedown 1 sleep 0.1 mousemove_relative -- 5 5 sleep 0.1 mousemove " +
             place(client.left + pixels.cx - 2, client.top + pixels.cy + 2) +
             " sleep 0.2 mouseup 1");
  };
  actUntil("the new size", drag, [&] { return alike(sizesOf(window), sizes); });
}

/// Drags the splitter to a place on the screen's width until `look` likes the window's sizes.
template <class Look>
void dragSplitter(const QuickLookup& window, LONG target, Look look) {
  const auto drag = [&] {
    const POINT handle = centreOf(window.splitter());
    input::drag(handle, {target, handle.y});
  };
  actUntil("the list to be as wide", drag, [&] { return look(sizesOf(window)); });
}

/// Opens the window, which is to have these sizes. It is opened only once and nothing is stored
/// here: the sizes are those that the program has kept.
void expectOpensWith(const Lexilo& lexilo, const Sizes& sizes) {
  const QuickLookup window = lexilo.openQuickLookup();
  EXPECT_TRUE(eventually([&] { return alike(sizesOf(window), sizes); }, 2'000))
      << ::testing::PrintToString(sizesOf(window));
}

/// Minimises the window as its frame's button does.
void minimise(const QuickLookup& window) {
  // The display may not know of the window yet.
  const auto command = [] {
    try {
      runBelow("xdotool search --onlyvisible --name '^速查 V1.3$' windowminimize");
    } catch (const Failure&) {
      reportRetry("the display to know the window");
    }
  };
  actUntil("the window to be minimised", command,
           [&] { return IsIconic(window.window()) != FALSE; });
}

TEST_F(SizesKept, WithoutSettingsItHasItsDesignSize) {
  const Lexilo lexilo(AppFolder::withFullDictionary());
  lexilo.waitUntilSeen();
  expectOpensWith(lexilo, {3500, 3200, 2000});
}

TEST_F(SizesKept, OverClosingReopeningAndRestarting) {
  const AppFolder folder = AppFolder::withFullDictionary();
  Sizes chosen;
  {
    const Lexilo lexilo(folder);
    lexilo.waitUntilSeen();
    const QuickLookup window = lexilo.openQuickLookupAtA();
    dragCorner(window, {500, 400}, {7620, 6405, 2000});
    dragSplitter(window, centreOf(window.splitter()).x + 40,
                 [](const Sizes& sizes) { return sizes.list > 2500; });
    chosen = sizesOf(window);
    window.close();
    EXPECT_TRUE(alike(savedSizes(), chosen)) << ::testing::PrintToString(savedSizes());

    expectOpensWith(lexilo, chosen);
    EXPECT_EQ(lexilo.exit(), 0U);
  }
  const Lexilo restarted(folder);
  restarted.waitUntilSeen();
  expectOpensWith(restarted, chosen);
}

TEST_F(SizesKept, ReopeningManyTimesDoesNotLetThemCreep) {
  const Lexilo lexilo(AppFolder::withFullDictionary());
  lexilo.waitUntilSeen();
  const auto reopen = [&] {
    store({5003, 4007, 2011});
    for (int i = 0; i < 5; ++i) lexilo.openQuickLookup().close();
  };
  // A window manager that answers an earlier size late makes one of its own once in a while, hardly
  // twice in succession.
  actUntil("the sizes to stay", reopen,
           [] {
             return alike(savedSizes(), {5003, 4007, 2011});
           },
           {.most = 2});
}

TEST_F(SizesKept, MinimisingSavesNothingSmall) {
  const Lexilo lexilo(AppFolder::withFullDictionary());
  lexilo.waitUntilSeen();
  const QuickLookup window = lexilo.openQuickLookupAtA();
  const Sizes before = sizesOf(window);
  minimise(window);
  lexilo.click(ToolbarButton::kQuickLookup);
  waitFor("the window to be back", [&] { return IsIconic(window.window()) == FALSE; });
  waitFor("the old size", [&] { return sizesOf(window) == before; });
  minimise(window);
  PostMessageW(window.window(), WM_CLOSE, 0, 0);
  waitFor("the window to close", [&] { return IsWindow(window.window()) == FALSE; });
  EXPECT_TRUE(alike(savedSizes(), before)) << ::testing::PrintToString(savedSizes());
}

TEST_F(SizesKept, ClosingByTheFrameSavesAsTheButtonDoes) {
  const Lexilo lexilo(AppFolder::withFullDictionary());
  lexilo.waitUntilSeen();
  const QuickLookup window = lexilo.openQuickLookupAtA();
  const Sizes before = sizesOf(window);
  // The window manager's own key for closing.
  runBelow("xdotool key --clearmodifiers alt+F4");
  waitFor("the window to close", [&] { return IsWindow(window.window()) == FALSE; });
  EXPECT_TRUE(alike(savedSizes(), before)) << ::testing::PrintToString(savedSizes());
  EXPECT_TRUE(lexilo.process().running());
}

TEST_F(SizesKept, AWindowMadeTooSmallSnapsToItsLeastSize) {
  const Lexilo lexilo(AppFolder::withFullDictionary());
  lexilo.waitUntilSeen();
  const QuickLookup window = lexilo.openQuickLookupAtA();
  dragCorner(window, {420, 330}, {6420, 5355, 2000});
  dragCorner(window, {190, 130}, {3500, 2800, 2000});
}

TEST_F(SizesKept, ASplitterDroppedFarLeftLeavesTheLeastList) {
  const Lexilo lexilo(AppFolder::withFullDictionary());
  lexilo.waitUntilSeen();
  const QuickLookup window = lexilo.openQuickLookupAtA();
  dragSplitter(window, rectOf(window.list()).left + 20, [](const Sizes& sizes) {
    return alike(sizes, {3500, 3200, 1600});
  });
}

TEST_F(SizesKept, ASplitterDroppedFarRightStopsAtItsLimit) {
  settings::write(L"WindowWidth", L"5000");
  const Lexilo lexilo(AppFolder::withFullDictionary());
  lexilo.waitUntilSeen();
  const QuickLookup window = lexilo.openQuickLookupAtA();
  // (5000 - 3500) / 3 + 1650
  dragSplitter(window, rectOf(window.pane()).right - 30, [](const Sizes& sizes) {
    return alike(sizes, {5000, 3200, 2150});
  });
  waitFor("the splitter to stand beside it",
          [&] { return window.splitter().left == rectOf(window.list()).right; });
}

TEST_F(SizesKept, ASizeThatIsNoNumberIsToldAndReplacedAtClosing) {
  settings::write(L"WindowWidth", L"wide");
  const Lexilo lexilo(AppFolder::withFullDictionary());
  lexilo.waitUntilSeen();
  lexilo.click(ToolbarButton::kQuickLookup);
  const ShownMessage box = waitForMessageBox(lexilo.process());
  EXPECT_FALSE(box.text.empty());
  EXPECT_TRUE(box.criticalIcon);
  box.answer();
  const QuickLookup window(lexilo.process());
  window.lookUp(L"data");
  window.close();
  EXPECT_GE(savedSizes().width, 3500);
}

}  // namespace
}  // namespace support
