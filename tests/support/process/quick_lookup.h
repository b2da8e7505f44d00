#pragma once

#include <string>
#include <vector>

#include "tests/support/process/find.h"
#include "tests/support/process/process.h"

namespace support {

/// The quick lookup window of a running Lexilo.
class QuickLookup {
 public:
  /// Waits until the window is there and in front, and for as long as a user takes to see that.
  explicit QuickLookup(const Process& process);

  /// This window, which is open but may lie behind others.
  explicit QuickLookup(HWND window);

  /// The window of a running program if it is open now, else null.
  static HWND find(const Process& process);

  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] HWND input() const { return input_; }
  [[nodiscard]] HWND list() const { return list_; }
  [[nodiscard]] HWND pane() const { return pane_; }
  [[nodiscard]] HWND exitButton() const { return exitButton_; }

  /// The splitter between list and pane, screen pixels.
  [[nodiscard]] RECT splitter() const;

  [[nodiscard]] std::vector<std::wstring> words() const;  ///< what the list shows
  [[nodiscard]] std::wstring meaning() const;             ///< what the pane shows
  [[nodiscard]] std::wstring typed() const;               ///< what the box holds

  /// The headword of the pane's first line.
  [[nodiscard]] std::wstring headword() const;

  /// Clicks into the box, replaces what it holds by typing, and waits until it stands there.
  void type(const std::wstring& text) const;

  /// The same, and waits until the pane shows `headword`.
  void lookUp(const std::wstring& text, const std::wstring& headword) const;
  void lookUp(const std::wstring& word) const { lookUp(word, word); }

  /// Waits until the pane shows this headword.
  void waitForHeadword(const std::wstring& headword) const;

  /// Clicks a node of the list, from 0.
  void clickWord(int index) const;

  /// Closes the window by its button.
  void close() const;

 private:
  HWND window_;
  HWND input_;
  HWND list_;
  HWND pane_;
  HWND exitButton_;
};

}  // namespace support
