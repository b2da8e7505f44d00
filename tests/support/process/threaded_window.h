#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <thread>

namespace support {

/// A window filled by one control, on a thread of its own: for the system's input, and for whoever
/// asks it, a window of another program.
class ThreadedWindow {
 public:
  struct Design {
    std::wstring controlClass = L"EDIT";
    DWORD controlStyle = 0;
    RECT place{};  ///< of the window, on the screen
    std::wstring title = {};
    DWORD style = WS_POPUP;
    DWORD extendedStyle = WS_EX_TOPMOST | WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW;
    /// Called on the window's thread before the window is shown.
    std::function<void(HWND control)> prepare = {};
    /// Called there for the window's messages; what it does not answer goes the usual way.
    std::function<std::optional<LRESULT>(HWND window, UINT message, WPARAM wParam, LPARAM lParam)>
        handle = {};
    /// Of the window's thread, in whose pixels `place` is; null: the program's.
    DPI_AWARENESS_CONTEXT awareness = nullptr;
  };

  /// Returns when the window is shown.
  explicit ThreadedWindow(Design design);
  /// Closes it and waits for its thread.
  ~ThreadedWindow();
  ThreadedWindow(const ThreadedWindow&) = delete;
  ThreadedWindow& operator=(const ThreadedWindow&) = delete;

  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] HWND control() const { return control_; }

  /// Has it close, and waits for nothing.
  void close() const { PostMessageW(window_, WM_CLOSE, 0, 0); }

 private:
  static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void create();
  void run(HANDLE ready);

  Design design_;
  HWND window_ = nullptr;
  HWND control_ = nullptr;
  std::thread thread_;
};

}  // namespace support
