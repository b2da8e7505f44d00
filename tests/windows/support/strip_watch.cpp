#include "tests/windows/support/strip_watch.h"

#include "tests/windows/support/screen_places.h"

namespace wintest {
namespace {

std::vector<StripWatch::Place>& seen() {
  static std::vector<StripWatch::Place> places;
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

StripWatch::StripWatch() {
  seen().clear();
  hook_ = SetWindowsHookExW(WH_CALLWNDPROCRET, watch, nullptr, GetCurrentThreadId());
}

StripWatch::~StripWatch() { UnhookWindowsHookEx(hook_); }

const std::vector<StripWatch::Place>& StripWatch::places() { return seen(); }

}  // namespace wintest
