#pragma once

#include <string>

#include "tests/support/process/find.h"
#include "tests/support/process/process.h"

namespace support {

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

}  // namespace support
