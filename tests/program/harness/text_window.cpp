#include "tests/program/harness/text_window.h"

#include "tests/program/harness/find.h"

namespace harness {
namespace {

constexpr wchar_t kClassName[] = L"HarnessTextWindow";

/// Has the window's thread wait until the event in its wParam is set, and tells so by the other.
constexpr UINT kKeepBusy = WM_APP + 1;

LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case kKeepBusy: {
      SetEvent(reinterpret_cast<HANDLE>(lParam));
      WaitForSingleObject(reinterpret_cast<HANDLE>(wParam), 60'000);
      return 0;
    }
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(window, message, wParam, lParam);
  }
}

}  // namespace

TextWindow::TextWindow(const wchar_t* className, DWORD style, const RECT& place,
                       const std::wstring& text) {
  HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  thread_ = std::thread([=, this] { run(className, style, place, text, ready); });
  WaitForSingleObject(ready, kPatience);
  CloseHandle(ready);
  waitFor("the text to be seen", [&] { return WindowFromPoint(characterPoint(0)) == control_; });
}

TextWindow::~TextWindow() {
  PostMessageW(window_, WM_CLOSE, 0, 0);
  thread_.join();
}

void TextWindow::run(const std::wstring& className, DWORD style, RECT place,
                     const std::wstring& text, HANDLE ready) {
  LoadLibraryW(L"riched20.dll");
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = windowProc;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.lpszClassName = kClassName;
  windowClass.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
  RegisterClassW(&windowClass);
  const int width = place.right - place.left;
  const int height = place.bottom - place.top;
  window_ = CreateWindowExW(WS_EX_TOPMOST | WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, kClassName, L"",
                            WS_POPUP, place.left, place.top, width, height, nullptr, nullptr,
                            windowClass.hInstance, nullptr);
  control_ = CreateWindowExW(0, className.c_str(), text.c_str(), WS_CHILD | WS_VISIBLE | style, 0,
                             0, width, height, window_, nullptr, windowClass.hInstance, nullptr);
  ShowWindow(window_, SW_SHOWNOACTIVATE);
  UpdateWindow(window_);
  SetEvent(ready);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

POINT TextWindow::characterPoint(int index) const {
  DWORD_PTR place = 0;
  SendMessageTimeoutW(control_, EM_POSFROMCHAR, static_cast<WPARAM>(index), 0, SMTO_ABORTIFHUNG,
                      kPatience, &place);
  POINT point{static_cast<SHORT>(LOWORD(place)) + 4, static_cast<SHORT>(HIWORD(place)) + 6};
  ClientToScreen(control_, &point);
  return point;
}

TextWindow::Busy::Busy(const TextWindow& window)
    : window_(window.window()), free_(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
  HANDLE reached = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  PostMessageW(window.window(), kKeepBusy, reinterpret_cast<WPARAM>(free_),
               reinterpret_cast<LPARAM>(reached));
  WaitForSingleObject(reached, kPatience);
  CloseHandle(reached);
}

TextWindow::Busy::~Busy() {
  SetEvent(free_);
  // Answered once the thread waits no more.
  SendMessageW(window_, WM_NULL, 0, 0);
  CloseHandle(free_);
}

}  // namespace harness
