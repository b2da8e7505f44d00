// The least that a program with the capture cycle can be: its two timers, and every 100 ms the
// strip, moved over the window under the pointer if that is a text box, and away again. It asks no
// window for anything. capture_bench compares Lexilo's processor time with that of this program.
#include <windows.h>

namespace {

constexpr wchar_t kClassName[] = L"Lexilo.BareProbe";
constexpr UINT_PTR kHandOver = 1;
constexpr UINT_PTR kProbe = 2;
constexpr int kAway = -1000;

void place(HWND strip, int left, int top, int width) {
  SetWindowPos(strip, HWND_TOPMOST, left, top, width, 5, SWP_SHOWWINDOW | SWP_NOACTIVATE);
}

void probe(HWND strip) {
  POINT pointer{};
  GetCursorPos(&pointer);
  const HWND window = WindowFromPoint(pointer);
  wchar_t name[64];
  RECT outer{};
  if (GetClassNameW(window, name, 64) == 0 || lstrcmpiW(name, L"Edit") != 0 ||
      GetWindowRect(window, &outer) == FALSE) {
    return;
  }
  place(strip, static_cast<int>(outer.left), static_cast<int>(pointer.y) - 5,
        static_cast<int>(outer.right - outer.left));
  place(strip, kAway, kAway, static_cast<int>(outer.right - outer.left));
}

LRESULT CALLBACK answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_TIMER) {
    if (wParam == kProbe) probe(window);
    return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

HWND makeStrip(HINSTANCE instance) {
  WNDCLASSW design{};
  design.lpfnWndProc = answer;
  design.hInstance = instance;
  design.hbrBackground = GetSysColorBrush(COLOR_HIGHLIGHT);
  design.lpszClassName = kClassName;
  RegisterClassW(&design);
  return CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, kClassName, L"",
                         WS_POPUP, kAway, kAway, 100, 5, nullptr, nullptr, instance, nullptr);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE /*previous*/, PWSTR /*arguments*/, int /*show*/) {
  const HWND strip = makeStrip(instance);
  if (strip == nullptr) return 1;
  SetTimer(strip, kHandOver, 5, nullptr);
  SetTimer(strip, kProbe, 100, nullptr);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}
