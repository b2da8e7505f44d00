#pragma once

#include <windows.h>

#include <string>

#include "tests/support/process/threaded_window.h"

namespace support {

/// Returns the name of a class of rich edit controls that no probe asks, which it registers: as
/// programs of .NET do, with the name in capitals. Wine's own RICHEDIT50W is a RichEdit50W.
const wchar_t* furtherRichEdit();

/// A window of the test's own, filled by one control: for Lexilo another program. It can be kept
/// from answering.
class TextWindow {
 public:
  TextWindow(const wchar_t* className, DWORD style, const RECT& place, const std::wstring& text);

  [[nodiscard]] HWND window() const { return window_.window(); }
  [[nodiscard]] HWND control() const { return window_.control(); }

  /// Where character `index` of an edit control stands on the screen.
  [[nodiscard]] POINT characterPoint(int index) const;

  /// While one lives, the window answers nothing.
  class Busy {
   public:
    explicit Busy(const TextWindow& window);
    ~Busy();
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

   private:
    HWND window_;
    HANDLE free_;
  };

 private:
  ThreadedWindow window_;
};

}  // namespace support
