// Where the windows open, and how they follow the mouse at their frames.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/process/controls.h"
#include "tests/support/process/dictionary_windows.h"
#include "tests/support/process/input.h"
#include "tests/support/process/lexilo.h"
#include "tests/support/process/overlay_window.h"
#include "tests/support/process/quick_lookup_sizes.h"
#include "tests/support/process/screen.h"
#include "tests/support/process/settings.h"

namespace support {
namespace {

/// Has the windows of programs called lexilo.exe framed, moved and sized by the system itself
/// instead of the display's window manager, until the end of the scope: as on Windows.
class FramedBySystem {
 public:
  FramedBySystem() { set(L"N"); }
  ~FramedBySystem() {
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Wine\\AppDefaults\\lexilo.exe");
  }
  FramedBySystem(const FramedBySystem&) = delete;
  FramedBySystem& operator=(const FramedBySystem&) = delete;

 private:
  static void set(const std::wstring& managed) {
    const LSTATUS status = RegSetKeyValueW(
        HKEY_CURRENT_USER, L"Software\\Wine\\AppDefaults\\lexilo.exe\\X11 Driver", L"Managed",
        REG_SZ, managed.c_str(), static_cast<DWORD>((managed.size() + 1) * sizeof(wchar_t)));
    if (status != ERROR_SUCCESS) throw Failure("the registry cannot be written");
  }
};

class Places : public ::testing::Test {
 protected:
  Places() { settings::clear(); }
  ~Places() override { settings::clear(); }

  static void waitForCornerAt(HWND window, LONG x, LONG y) {
    waitFor("the window to be there",
            [=] { return rectOf(window).left == x && rectOf(window).top == y; });
  }
};

TEST_F(Places, TheQuickLookupWindowOpensBelowTheToolbarAndComesBackWhereItWas) {
  const FramedBySystem framed;
  const Lexilo lexilo(AppFolder::withFullDictionary());
  const RECT bar = rectOf(lexilo.waitUntilSeen());
  const QuickLookup first = lexilo.openQuickLookupAtA();
  waitForCornerAt(first.window(), bar.left, bar.bottom);
  EXPECT_TRUE(alike(sizesOf(first), {3500, 3200, 2000}));
  EXPECT_LE(rectOf(first.window()).right, GetSystemMetrics(SM_CXSCREEN));
  saveScreenshot("build/shots/lookup-below-toolbar.png");
  // By its title bar.
  const RECT rect = rectOf(first.window());
  input::drag({rect.left + 60, rect.top + 12}, {360, 412});
  waitFor("the window to follow the mouse", [&] { return rectOf(first.window()).left < 400; });
  passTime(kReactionTime);
  const RECT moved = rectOf(first.window());
  for (int i = 0; i < 3; ++i) {
    QuickLookup(lexilo.process()).close();
    waitForCornerAt(lexilo.openQuickLookup().window(), moved.left, moved.top);
  }
}

/// Presses a button of the mouse and moves it in steps, looking at each.
template <class Look>
void dragLooking(POINT from, POINT to, Look look) {
  constexpr int kSteps = 12;
  input::press(from);
  for (int i = 1; i <= kSteps; ++i) {
    input::moveTo(
        {from.x + ((to.x - from.x) * i / kSteps), from.y + ((to.y - from.y) * i / kSteps)});
    Sleep(30);
    look();
  }
  input::release();
}

TEST_F(Places, DraggedTooSmallAtAnySideTheQuickLookupWindowStaysAtTheOtherOne) {
  const FramedBySystem framed;
  const Lexilo lexilo(AppFolder::withFullDictionary());
  lexilo.waitUntilSeen();
  const QuickLookup window = lexilo.openQuickLookupAtA();
  const RECT large{300, 300, 700, 650};
  SetWindowPos(window.window(), nullptr, 300, 300, 100, 100, SWP_NOZORDER | SWP_NOACTIVATE);
  waitFor("the least size", [&] { return alike(sizesOf(window), {3500, 2800, 2000}); });
  const SIZE least = sizeOf(rectOf(window.window()));
  const POINT middle = centreOf(large);
  struct Side {
    const char* name;
    POINT grip;
    POINT target;
    RECT after;
  };
  const Side sides[] = {
      {"left", {301, middle.y}, {690, middle.y}, {700 - least.cx, 300, 700, 650}},
      {"right", {698, middle.y}, {310, middle.y}, {300, 300, 300 + least.cx, 650}},
      {"top", {middle.x, 301}, {middle.x, 640}, {300, 650 - least.cy, 700, 650}},
      {"bottom", {middle.x, 648}, {middle.x, 310}, {300, 300, 700, 300 + least.cy}},
      {"upper left", {301, 301}, {690, 640}, {700 - least.cx, 650 - least.cy, 700, 650}},
  };
  for (const Side& side : sides) {
    SCOPED_TRACE(side.name);
    placeWindow(window.window(), large);
    dragLooking(side.grip, side.target, [&] {
      const RECT rect = rectOf(window.window());
      EXPECT_GE(rect.right - rect.left, least.cx);
      EXPECT_GE(rect.bottom - rect.top, least.cy);
      // The sides that are not dragged stay all the while.
      for (const LONG RECT::*edge : {&RECT::left, &RECT::top, &RECT::right, &RECT::bottom}) {
        EXPECT_TRUE(side.after.*edge != large.*edge || rect.*edge == large.*edge);
      }
    });
    waitFor("the least size", [&] {
      const RECT rect = rectOf(window.window());
      return EqualRect(&rect, &side.after) != FALSE;
    });
  }
}

TEST_F(Places, TheQueryWindowCannotBeDraggedTooSmallForItsButtons) {
  const FramedBySystem framed;
  const Lexilo lexilo(AppFolder::withFullDictionary());
  lexilo.waitUntilSeen();
  const MultiQuery query(lexilo);
  const RECT before = rectOf(query.window());
  input::drag({before.right - 2, before.bottom - 2}, {before.left + 100, before.top + 100});
  waitFor("a smaller window", [&] { return rectOf(query.window()).right < before.right; });
  saveScreenshot("build/shots/least-query.png");
  const RECT client = clientRectOf(query.window());
  for (const wchar_t* caption : {L"确定", L"高级", L"特殊"}) {
    const RECT button = rectOf(buttonOf(query.window(), caption));
    EXPECT_GE(button.left, rectOf(query.input()).right);
    EXPECT_LE(button.right, client.right);
    EXPECT_LE(button.bottom, rectOf(query.results()).top);
  }
}

TEST_F(Places, ASplitterTakenBesideItsLineIsDroppedAsIfOnIt) {
  settings::write(L"WindowWidth", L"9000");
  settings::write(L"TreeWidth", L"2900");
  const Lexilo lexilo(AppFolder::withFullDictionary());
  lexilo.waitUntilSeen();
  const QuickLookup window = lexilo.openQuickLookupAtA();
  for (const int beside : {-3, 0, 3}) {
    SCOPED_TRACE(beside);
    RECT line{};
    const auto drag = [&] {
      // After a drop the list is placed first, then the line.
      waitFor("the line beside the list", [&] {
        line = window.splitter();
        return line.left == rectOf(window.list()).right;
      });
      const POINT press{line.left + beside, centreOf(line).y};
      input::drag(press, {press.x - 20, press.y});
    };
    // 20 pixels, and 30 twips that every drop on the list takes off.
    actUntil("the list to be as wide", drag,
             [&] { return rectOf(window.list()).right == line.left - 20 - 2; });
  }
}

TEST_F(Places, AClickOnAWindowBringsTheToolbarAboveAnotherTopmostOne) {
  const Lexilo lexilo(AppFolder::withFullDictionary());
  HWND toolbar = lexilo.waitUntilSeen();
  lexilo.choose(MenuItem::kAbout);
  HWND about = waitForForm(lexilo.process(), L"frmAbout");
  const RECT rect = rectOf(toolbar);
  const OverlayWindow cover({rect.left, rect.top, rect.left + 60, rect.bottom});
  const POINT covered{rect.left + 20, rect.top + 5};
  SetForegroundWindow(cover.window());
  waitFor("the toolbar to be covered", [&] { return topWindowAt(covered) == cover.window(); });
  const RECT box = clientRectOf(about);
  input::click({box.left + 5, box.top + 5});
  waitFor("the toolbar to be above again", [&] { return topWindowAt(covered) == toolbar; });
}

}  // namespace
}  // namespace support
