#pragma once

#include <windows.h>

#include <string>

#include "tests/support/process/find.h"
#include "tests/support/process/process.h"

/// The programs of the system that users work in beside ours.
namespace support {

/// The system's Notepad, as another program that users work in.
class Notepad {
 public:
  /// Starts it, with a file's text where `file` is not empty, and waits until one can type into it
  /// and a user has seen it.
  explicit Notepad(const std::wstring& file = L"");

  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] HWND edit() const { return edit_; }
  [[nodiscard]] std::wstring text() const { return textOf(edit_); }
  void setText(const std::wstring& text) const;

  /// Clicks into its text and waits until it has the keyboard.
  void clickIntoText() const;

  /// Moves and resizes its window, outer frame included.
  void place(const RECT& rect) const;

 private:
  Process process_;
  HWND window_;
  HWND edit_;
};

/// The system's WordPad, whose text is a rich text box.
class WordPad {
 public:
  /// Starts it, with a file's text where `file` is not empty, and waits until a user has seen it.
  explicit WordPad(const std::wstring& file = L"");

  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] HWND edit() const { return edit_; }

  void setText(const std::wstring& text) const;
  void place(const RECT& rect) const;

 private:
  Process process_;
  HWND window_;
  HWND edit_;
};

/// The browser that Lexilo starts: Wine's, whose page stays blank without its engine.
class Browser {
 public:
  /// Waits for its window.
  Browser();
  /// Ends it.
  ~Browser();
  Browser(const Browser&) = delete;
  Browser& operator=(const Browser&) = delete;

  /// Waits for its address bar to show this address; whatever it shows instead is in the failure.
  void waitForAddress(const std::wstring& address) const;

 private:
  HWND window_;
};

}  // namespace support
