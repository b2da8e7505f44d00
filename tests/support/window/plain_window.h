#pragma once

#include <windows.h>

namespace support {

/// A bare window of any class on our own thread, above all others, without the focus.
class PlainWindow {
 public:
  PlainWindow(const wchar_t* className, const RECT& place, const wchar_t* text = L"",
              DWORD style = 0)
      : window_(CreateWindowExW(WS_EX_TOPMOST | WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, className,
                                text, WS_POPUP | style, place.left, place.top,
                                place.right - place.left, place.bottom - place.top, nullptr,
                                nullptr, GetModuleHandleW(nullptr), nullptr)) {
    ShowWindow(window_, SW_SHOWNOACTIVATE);
    UpdateWindow(window_);
  }
  ~PlainWindow() { DestroyWindow(window_); }
  PlainWindow(const PlainWindow&) = delete;
  PlainWindow& operator=(const PlainWindow&) = delete;

  [[nodiscard]] HWND handle() const { return window_; }

 private:
  HWND window_;
};

/// Registers a class that does nothing of its own, once.
inline const wchar_t* plainClass(const wchar_t* name) {
  WNDCLASSW plain{};
  plain.lpfnWndProc = DefWindowProcW;
  plain.hInstance = GetModuleHandleW(nullptr);
  plain.lpszClassName = name;
  plain.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
  RegisterClassW(&plain);
  return name;
}

}  // namespace support
