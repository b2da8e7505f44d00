// The least that a program with a window can be, built as Lexilo is: a window with a text box and a
// button that does nothing. memory_bench compares Lexilo's memory with that of this program.
#include <windows.h>

namespace {

constexpr wchar_t kClassName[] = L"Lexilo.BareWindow";

LRESULT CALLBACK answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wParam, lParam);
}

HWND makeWindow(HINSTANCE instance) {
  WNDCLASSW design{};
  design.lpfnWndProc = answer;
  design.hInstance = instance;
  design.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  design.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  design.lpszClassName = kClassName;
  RegisterClassW(&design);
  HWND window = CreateWindowExW(0, kClassName, L"A bare window", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                100, 100, 400, 300, nullptr, nullptr, instance, nullptr);
  CreateWindowExW(WS_EX_CLIENTEDGE, L"Edit", L"text", WS_CHILD | WS_VISIBLE, 20, 20, 200, 24,
                  window, nullptr, instance, nullptr);
  CreateWindowExW(0, L"Button", L"button", WS_CHILD | WS_VISIBLE, 20, 60, 80, 24, window, nullptr,
                  instance, nullptr);
  return window;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE /*previous*/, PWSTR /*arguments*/, int /*show*/) {
  if (makeWindow(instance) == nullptr) return 1;
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}
