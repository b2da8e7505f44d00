#pragma once

#include <windows.h>

#include <vector>

/// What windows of this thread are told about their places, seen by a hook, for tests of windows
/// that come and go within one call.
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

/// Writes down every place that the probe strip takes, shown or not, while it lives.
class StripRecorder {
 public:
  struct Place {
    RECT rect{};
    bool shown = false;
    bool topmost = false;
    bool tookFocus = false;
  };

  StripRecorder();
  ~StripRecorder();
  StripRecorder(const StripRecorder&) = delete;
  StripRecorder& operator=(const StripRecorder&) = delete;

  [[nodiscard]] static const std::vector<Place>& places();

 private:
  HHOOK hook_;
};

}  // namespace support
