#pragma once

#include <vector>

#include "tests/support/process/app_folder.h"
#include "tests/support/process/find.h"
#include "tests/support/process/process.h"
#include "tests/support/process/quick_lookup.h"

namespace support {

/// The toolbar's buttons, from left to right.
enum class ToolbarButton {
  kQuickLookup,
  kMultiFunction,
  kDictionarySettings,
  kCapture,
  kHelp,
  kMenu
};

/// The items of the toolbar's menu, in steps of the Down key from above the first; negative ones in
/// steps of the Up key from below the last. Separators are no steps.
enum class MenuItem {
  kMultiFunction = 1,
  kQuickLookup = 2,
  kCapture = 3,
  kDictionarySettings = 4,
  kHelp = 5,
  kAbout = 6,
  kHomePage = 7,
  exit = -1
};

/// Lexilo, started as a user starts it.
class Lexilo {
 public:
  /// Starts the program of `folder` and waits for nothing.
  explicit Lexilo(const AppFolder& folder);

  [[nodiscard]] const Process& process() const { return process_; }

  /// The toolbar's window, once it is visible.
  [[nodiscard]] HWND toolbar() const;

  /// Waits until the toolbar is painted on the screen and returns its window.
  HWND waitUntilPainted() const;

  /// The same, and waits for as long as a user takes to see it.
  HWND waitUntilSeen() const;

  /// The handle that the toolbar is dragged by, screen pixels.
  [[nodiscard]] RECT grip() const;

  [[nodiscard]] HWND button(ToolbarButton button) const;
  void click(ToolbarButton button) const;

  /// Opens the quick lookup window by the toolbar's first button and waits for it.
  [[nodiscard]] QuickLookup openQuickLookup() const;

  /// The same, and waits for the words that it starts with. One that was opened before the
  /// dictionary's index was there shows none: then it is closed and opened again.
  [[nodiscard]] QuickLookup openQuickLookupAtA() const;

  /// Drops the toolbar's menu down and waits for it. Returns its window.
  HWND dropMenu() const;

  /// Drops the menu down and chooses an item by the keys.
  void choose(MenuItem item) const;

  /// Ends the program by its menu and returns its exit code.
  DWORD exit() const;

 private:
  [[nodiscard]] std::vector<HWND> fromLeftToRight(const std::wstring& className) const;

  Process process_;
};

}  // namespace support
