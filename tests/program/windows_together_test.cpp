// The program's windows beside and above each other: which is seen, and which has the keyboard.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/process/controls.h"
#include "tests/support/process/dictionary_windows.h"
#include "tests/support/process/input.h"
#include "tests/support/process/message_box.h"
#include "tests/support/process/screen.h"

namespace support {
namespace {

constexpr RECT kMiddle{260, 200, 1020, 800};  ///< leaves no room beside it for the query window

class WindowsTogether : public ::testing::Test {
 protected:
  WindowsTogether() : lookup_(openLookup()) {}

  /// Forces paints of the quick lookup window, each of which raises it.
  void repaintLookup() const {
    for (int i = 0; i < 5; ++i) {
      RedrawWindow(lookup_.window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
      Sleep(20);
    }
  }

  /// Whether neither the quick lookup window nor the toolbar covers a part of `window`, even after
  /// the former was painted. Ends the scene: those two are hidden then.
  [[nodiscard]] bool staysSeen(HWND window) const {
    repaintLookup();
    return isSeenWhole(window, {lookup_.window(), lexilo.toolbar()});
  }

  const Lexilo lexilo{AppFolder::withFullDictionary()};
  const QuickLookup lookup_;

 private:
  QuickLookup openLookup() const {
    lexilo.waitUntilSeen();
    QuickLookup window = lexilo.openQuickLookupAtA();
    placeWindow(window.window(), kMiddle);
    return window;
  }
};

TEST_F(WindowsTogether, TheQueryWindowIsSeen) {
  const MultiQuery query(lexilo);
  saveScreenshot("build/shots/query-over-lookup.png");
  EXPECT_TRUE(staysSeen(query.window()));
}

TEST_F(WindowsTogether, TheMessageOfAFruitlessSearchIsSeen) {
  const MultiQuery query(lexilo);
  query.search(L"zzzzz");
  const ShownMessage box = waitForMessageBox(lexilo.process());
  EXPECT_EQ(box.text, L"Sorry，没有该词条！");
  EXPECT_TRUE(staysSeen(box.window));
  box.answer();
}

TEST_F(WindowsTogether, TheDictionarySettingsAreSeen) {
  const DictionarySettings settings(lexilo);
  EXPECT_TRUE(staysSeen(settings.window()));
}

TEST_F(WindowsTogether, TheAboutBoxIsSeen) {
  lexilo.choose(MenuItem::kAbout);
  EXPECT_TRUE(staysSeen(waitForForm(lexilo.process(), L"frmAbout")));
}

TEST_F(WindowsTogether, TheSpecialQueryIsSeen) {
  const MultiQuery query(lexilo);
  const SpecialQuery dialog(lexilo.process(), query);
  EXPECT_TRUE(staysSeen(dialog.window()));
}

TEST_F(WindowsTogether, TheWarningOfTheSpecialQueryIsSeen) {
  const MultiQuery query(lexilo);
  const SpecialQuery dialog(lexilo.process(), query);
  dialog.ask(L"", L"");
  const ShownMessage box = waitForMessageBox(lexilo.process());
  EXPECT_TRUE(staysSeen(box.window));
  box.answer();
}

TEST_F(WindowsTogether, AWindowBesideStaysSeenWhileWordsAreTyped) {
  placeWindow(lookup_.window(), {20, 100, 270, 400});
  const DictionarySettings settings(lexilo);
  EXPECT_FALSE(isTopmost(settings.window()));
  for (const wchar_t* word : {L"set", L"data", L"get", L"zoology"}) lookup_.lookUp(word);
  EXPECT_TRUE(isSeenWhole(settings.window(), {lookup_.window(), lexilo.toolbar()}));
}

TEST_F(WindowsTogether, AMaximisedLookupLeavesTheToolbarInSight) {
  // Away from the buttons, whose tool tips and highlights come and go.
  input::moveTo({640, 900});
  const RECT bar = rectOf(lexilo.toolbar());
  const std::vector<COLORREF> look = settledPixels(bar);
  const auto seen = [&] { return screenPixels(bar) == look; };
  actUntil(
      "a maximised window",
      [&] {
        input::doubleClick({640, kMiddle.top + 12});
      },
      [&] { return IsZoomed(lookup_.window()) != FALSE; });
  waitFor("the toolbar above it", seen);
  lookup_.lookUp(L"a");  // its list is long in every dictionary
  waitFor("the toolbar above it after typing", seen);
  lookup_.clickWord(3);
  waitFor("the toolbar above it after a click", seen);
}

/// Whether the window manager draws a window's title bar as the active one's: blue where those of
/// others are grey.
bool hasActiveTitle(HWND window) {
  const RECT rect = rectOf(window);
  const RECT spot{rect.left + 40, rect.top + 16, rect.left + 41, rect.top + 17};
  const COLORREF colour = screenPixels(spot).front();
  constexpr int kClearly = 40;
  return GetBValue(colour) - GetRValue(colour) > kClearly;
}

TEST_F(WindowsTogether, TheKeyboardStaysInTheSpecialQueryAfterItsWarning) {
  const MultiQuery query(lexilo);
  waitFor("an active query window", [&] { return hasActiveTitle(query.window()); });
  query.click(L"特殊");
  HWND dialog = waitForForm(lexilo.process(), L"frmSpc");
  waitFor("an active dialog", [&] { return hasActiveTitle(dialog); });
  EXPECT_FALSE(hasActiveTitle(query.window()));
  input::pressOnDisplay({"Return"});
  const ShownMessage box = waitForMessageBox(lexilo.process());
  EXPECT_EQ(box.text, L"请在英文和中文的文本框里输入内容！");
  waitFor("an active message box", [&] { return hasActiveTitle(box.window); });
  input::pressOnDisplay({"Return"});
  waitUntilGone(box.window);
  waitFor("the dialog active again", [&] { return hasActiveTitle(dialog); });
  input::pressOnDisplay({"h", "e", "a", "t"});
  // Its upper box, which had the keyboard before.
  std::vector<HWND> edits = childrenOf(dialog, L"Edit");
  std::ranges::sort(edits, {}, [](HWND edit) { return rectOf(edit).top; });
  waitFor("what was typed", [&] { return textOf(edits.front()) == L"heat"; });
  EXPECT_EQ(textOf(query.input()), L"");
}

}  // namespace
}  // namespace support
