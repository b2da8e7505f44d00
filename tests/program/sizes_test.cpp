// The quick lookup window's size and layout, changed by the user and kept.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/process/lexilo.h"
#include "tests/support/process/message_box.h"
#include "tests/support/process/quick_lookup_sizes.h"
#include "tests/support/process/settings.h"

namespace support {
namespace {

Sizes savedSizes() {
  return {std::stoi(settings::read(L"WindowWidth")), std::stoi(settings::read(L"WindowHeight")),
          std::stoi(settings::read(L"TreeWidth"))};
}

void store(const Sizes& sizes) {
  settings::write(L"WindowWidth", std::to_wstring(sizes.width));
  settings::write(L"WindowHeight", std::to_wstring(sizes.height));
  settings::write(L"TreeWidth", std::to_wstring(sizes.list));
}

class SizesKept : public ::testing::Test {
 protected:
  SizesKept() { settings::clear(); }
  ~SizesKept() override { settings::clear(); }
};

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
