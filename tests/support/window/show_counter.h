#pragma once

#include <windows.h>

namespace support {

/// Counts how often windows of a class of this thread were told to show themselves, while it lives.
class ShowCounter {
 public:
  explicit ShowCounter(const wchar_t* className) : hook_(hook()) {
    name() = className;
    count() = 0;
  }
  ~ShowCounter() { UnhookWindowsHookEx(hook_); }
  ShowCounter(const ShowCounter&) = delete;
  ShowCounter& operator=(const ShowCounter&) = delete;

  static int times() { return count(); }

 private:
  static HHOOK hook() {
    return SetWindowsHookExW(WH_CALLWNDPROC, watch, nullptr, GetCurrentThreadId());
  }
  static const wchar_t*& name() {
    static const wchar_t* name = nullptr;
    return name;
  }
  static int& count() {
    static int count = 0;
    return count;
  }
  static LRESULT CALLBACK watch(int code, WPARAM wParam, LPARAM lParam) {
    const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && message.message == WM_WINDOWPOSCHANGING) {
      wchar_t className[64]{};
      GetClassNameW(message.hwnd, className, 64);
      const auto& place = *reinterpret_cast<const WINDOWPOS*>(message.lParam);
      if ((place.flags & SWP_SHOWWINDOW) != 0 && lstrcmpW(className, name()) == 0) ++count();
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }

  HHOOK hook_;
};

}  // namespace support
