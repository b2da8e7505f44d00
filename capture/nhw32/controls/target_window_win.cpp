#include "capture/nhw32/controls/target_window.h"

#include <algorithm>

#include "capture/nhw32/policy.h"

namespace nhw32 {
namespace {

template <class Box>
Box boxOf(const RECT& rect) {
  return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
          static_cast<int>(rect.bottom)};
}

RECT outerRectOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return rect;
}

RECT clientRectOf(HWND window) {
  RECT rect{};
  GetClientRect(window, &rect);
  return rect;
}

}  // namespace

TargetWindow::TargetWindow(WindowId window)
    : window_(reinterpret_cast<HWND>(window)),
      deadline_(std::chrono::steady_clock::now() + kQuestionTime) {}

DWORD TargetWindow::style() const {
  return static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_STYLE));
}

bool TargetWindow::isOurs() const {
  DWORD process = 0;
  GetWindowThreadProcessId(window_, &process);
  return process == GetCurrentProcessId();
}

LRESULT TargetWindow::ask(UINT message, WPARAM wParam, LPARAM lParam) const {
  const auto left =
      std::chrono::ceil<std::chrono::milliseconds>(deadline_ - std::chrono::steady_clock::now());
  if (left.count() <= 0) throw NoAnswer(Outcome::kOutOfTime);
  const auto time = static_cast<UINT>(std::min(left, kMessageTime).count());
  DWORD_PTR answer = 0;
  // SendMessageTimeout leaves the last error as it is for a window that counts as hung.
  SetLastError(0);
  // SMTO_BLOCK: messages that other threads send to this one wait until this call returns.
  if (SendMessageTimeoutW(window_, message, wParam, lParam, SMTO_ABORTIFHUNG | SMTO_BLOCK, time,
                          &answer) == 0) {
    throw NoAnswer(outcomeOfSendTimeout(GetLastError()));
  }
  return static_cast<LRESULT>(answer);
}

// The style is not enough: EM_SETPASSWORDCHAR hides the text of a control that was created without
// it.
bool TargetWindow::isPassword() const {
  return (style() & ES_PASSWORD) != 0 || ask(EM_GETPASSWORDCHAR) != 0;
}

WindowScale scaleOf(HWND window) {
  WindowScale scale{.onScreen = boxOf<ScreenBox>(outerRectOf(window)), .forTarget = {}};
  const ScopedTargetAwareness awareness(window);
  scale.forTarget = boxOf<TargetBox>(outerRectOf(window));
  return scale;
}

ClientPoint toClient(HWND window, TargetPoint point) {
  POINT client{point.x, point.y};
  ScreenToClient(window, &client);
  return {static_cast<int>(client.x), static_cast<int>(client.y)};
}

TargetBox fromClient(HWND window, const ClientBox& box) {
  POINT origin{0, 0};
  ClientToScreen(window, &origin);
  const int x = static_cast<int>(origin.x);
  const int y = static_cast<int>(origin.y);
  return {box.left + x, box.top + y, box.right + x, box.bottom + y};
}

bool inClientArea(HWND window, ClientPoint point) {
  const RECT client = clientRectOf(window);
  return PtInRect(&client, POINT{point.x, point.y}) != FALSE;
}

ClientBox inClientArea(HWND window, const ClientBox& box) {
  const auto client = boxOf<ClientBox>(clientRectOf(window));
  return {std::max(box.left, client.left), std::max(box.top, client.top),
          std::min(box.right, client.right), std::min(box.bottom, client.bottom)};
}

int dpiOf(HWND window) { return static_cast<int>(GetDpiForWindow(window)); }

std::optional<ClientBox> caretIn(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  if (GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) == FALSE ||
      info.hwndCaret != window || info.rcCaret.bottom <= info.rcCaret.top) {
    return std::nullopt;
  }
  return boxOf<ClientBox>(info.rcCaret);
}

}  // namespace nhw32
