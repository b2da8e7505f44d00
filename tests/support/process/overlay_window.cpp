#include "tests/support/process/overlay_window.h"

#include "tests/support/wait.h"

namespace support {

OverlayWindow::OverlayWindow(const RECT& rect)
    : window_(CreateWindowExW(WS_EX_TOPMOST | WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, L"STATIC", L"",
                              WS_POPUP | SS_NOTIFY, rect.left, rect.top, rect.right - rect.left,
                              rect.bottom - rect.top, nullptr, nullptr, nullptr, nullptr)) {
  if (window_ == nullptr) throw Failure("a window cannot be created");
  SetWindowPos(window_, HWND_TOPMOST, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

OverlayWindow::~OverlayWindow() { DestroyWindow(window_); }

HWND topWindowAt(POINT point) { return GetAncestor(WindowFromPoint(point), GA_ROOT); }

}  // namespace support
