#pragma once

#include <windows.h>

#include <string>
#include <thread>

namespace wintest {

/// A window with a text box on a thread of its own, which shares no focus and no activation with
/// ours: another program, as far as the system's input is concerned.
class OtherProgram {
 public:
  OtherProgram();
  ~OtherProgram();
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] HWND edit() const { return edit_; }
  [[nodiscard]] std::u16string text() const;

  /// Takes the foreground and waits until it has it.
  void activate() const;
  /// Puts it above all other windows, topmost ones too.
  void raiseAboveAll() const {
    SetWindowPos(window_, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
  [[nodiscard]] bool isForeground() const { return GetForegroundWindow() == window_; }

 private:
  void run(HANDLE ready);

  HWND window_ = nullptr;
  HWND edit_ = nullptr;
  std::thread thread_;
};

}  // namespace wintest
