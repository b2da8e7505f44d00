#pragma once

#include <windows.h>

#include <string>

#include "tests/support/process/threaded_window.h"

namespace support {

/// A window with a text box on a thread of its own, which shares no focus and no activation with
/// ours: another program, as far as the system's input is concerned.
class OtherProgram {
 public:
  OtherProgram();
  ~OtherProgram();
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

  [[nodiscard]] HWND window() const { return window_.window(); }
  [[nodiscard]] HWND edit() const { return window_.control(); }
  [[nodiscard]] std::u16string text() const;

  /// Takes the foreground and waits until it has it.
  void activate() const;
  /// Puts it above all other windows, topmost ones too.
  void raiseAboveAll() const {
    SetWindowPos(window(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
  [[nodiscard]] bool isForeground() const { return GetForegroundWindow() == window(); }

 private:
  ThreadedWindow window_;
};

}  // namespace support
