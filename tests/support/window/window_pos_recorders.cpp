#include "tests/support/window/window_pos_recorders.h"

#include "tests/support/window/window_geometry.h"

namespace support {
namespace {

std::vector<StripRecorder::Place>& seen() {
  static std::vector<StripRecorder::Place> places;
  return places;
}

bool isStrip(HWND window) {
  wchar_t name[32]{};
  GetClassNameW(window, name, 32);
  return lstrcmpW(name, L"Lexilo.frmScreen") == 0;
}

LRESULT CALLBACK watch(int code, WPARAM wParam, LPARAM lParam) {
  const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
  if (code == HC_ACTION && message.message == WM_WINDOWPOSCHANGED && isStrip(message.hwnd)) {
    seen().push_back({rectOf(message.hwnd), IsWindowVisible(message.hwnd) != FALSE,
                      isTopmost(message.hwnd), GetForegroundWindow() == message.hwnd});
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

StripRecorder::StripRecorder() {
  seen().clear();
  hook_ = SetWindowsHookExW(WH_CALLWNDPROCRET, watch, nullptr, GetCurrentThreadId());
}

StripRecorder::~StripRecorder() { UnhookWindowsHookEx(hook_); }

const std::vector<StripRecorder::Place>& StripRecorder::places() { return seen(); }

}  // namespace support
