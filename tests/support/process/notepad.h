#pragma once

#include <string>

#include "tests/support/process/find.h"
#include "tests/support/process/process.h"

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

}  // namespace support
