#include "tests/support/process/threaded_window.h"

#include "tests/support/wait.h"
#include "win32/handles.h"

namespace support {
namespace {

constexpr wchar_t kClassName[] = L"ThreadedWindow";

}  // namespace

ThreadedWindow::ThreadedWindow(Design design) : design_(std::move(design)) {
  LoadLibraryW(L"riched20.dll");
  const win32::OwnedKernelObject ready(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  thread_ = std::thread([this, event = ready.get()] { run(event); });
  WaitForSingleObject(ready.get(), kDefaultTimeout);
}

ThreadedWindow::~ThreadedWindow() {
  close();
  thread_.join();
}

LRESULT CALLBACK ThreadedWindow::windowProc(HWND window, UINT message, WPARAM wParam,
                                            LPARAM lParam) {
  const auto* self =
      reinterpret_cast<const ThreadedWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self != nullptr && self->design_.handle) {
    if (const auto answer = self->design_.handle(window, message, wParam, lParam)) return *answer;
  }
  if (message != WM_DESTROY) return DefWindowProcW(window, message, wParam, lParam);
  PostQuitMessage(0);
  return 0;
}

void ThreadedWindow::create() {
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = windowProc;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.lpszClassName = kClassName;
  windowClass.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
  RegisterClassW(&windowClass);
  const RECT& place = design_.place;
  window_ =
      CreateWindowExW(design_.extendedStyle, kClassName, design_.title.c_str(), design_.style,
                      place.left, place.top, place.right - place.left, place.bottom - place.top,
                      nullptr, nullptr, windowClass.hInstance, nullptr);
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  RECT client{};
  GetClientRect(window_, &client);
  control_ = CreateWindowExW(0, design_.controlClass.c_str(), L"",
                             WS_CHILD | WS_VISIBLE | design_.controlStyle, 0, 0, client.right,
                             client.bottom, window_, nullptr, windowClass.hInstance, nullptr);
  if (design_.prepare) design_.prepare(control_);
}

void ThreadedWindow::run(HANDLE ready) {
  if (design_.awareness != nullptr) SetThreadDpiAwarenessContext(design_.awareness);
  create();
  ShowWindow(window_, SW_SHOWNOACTIVATE);
  UpdateWindow(window_);
  SetEvent(ready);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace support
