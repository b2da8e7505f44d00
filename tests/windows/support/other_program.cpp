#include "tests/windows/support/other_program.h"

#include <gtest/gtest.h>

#include "tests/windows/support/pump.h"

namespace wintest {
namespace {

constexpr wchar_t kClassName[] = L"OtherProgram";

LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SETFOCUS:
      SetFocus(GetWindow(window, GW_CHILD));
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(window, message, wParam, lParam);
  }
}

}  // namespace

OtherProgram::OtherProgram() {
  HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  thread_ = std::thread([this, ready] { run(ready); });
  WaitForSingleObject(ready, kPatience);
  CloseHandle(ready);
}

OtherProgram::~OtherProgram() {
  PostMessageW(window_, WM_CLOSE, 0, 0);
  // Its thread may wait for an answer from ours while it goes.
  eventually([this] { return IsWindow(window_) == FALSE; });
  thread_.join();
}

void OtherProgram::run(HANDLE ready) {
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = windowProc;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.lpszClassName = kClassName;
  windowClass.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
  RegisterClassW(&windowClass);
  window_ = CreateWindowExW(0, kClassName, L"Other program", WS_OVERLAPPEDWINDOW, 40, 560, 400, 300,
                            nullptr, nullptr, windowClass.hInstance, nullptr);
  edit_ = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE | ES_MULTILINE, 0, 0, 380, 260,
                          window_, nullptr, windowClass.hInstance, nullptr);
  // With its text box, or the focus would rest on the window itself.
  ShowWindow(window_, SW_SHOWNOACTIVATE);
  SetEvent(ready);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

std::u16string OtherProgram::text() const {
  wchar_t text[1024] = L"";
  const auto length = SendMessageW(edit_, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text));
  return {text, text + length};
}

void OtherProgram::activate() const {
  SetForegroundWindow(window_);
  ASSERT_TRUE(eventually([this] {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window_, nullptr), &info);
    return isForeground() && info.hwndFocus == edit_;
  }));
}

}  // namespace wintest
