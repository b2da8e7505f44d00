#include "capture/nhw32/controls/target_window.h"

#include <algorithm>
#include <array>

#include "capture/nhw32/silence.h"

namespace nhw32 {
namespace {

using ClassName = std::array<wchar_t, 257>;  // the system's limit is 256 characters

ScreenBox outerBoxOf(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return boxOf(rect);
}

}  // namespace

ScreenBox boxOf(const RECT& rect) {
  return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
          static_cast<int>(rect.bottom)};
}

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
  if (left.count() <= 0) throw NoAnswer(Outcome::outOfTime);
  const auto time = static_cast<UINT>(std::min(left, kMessageTime).count());
  DWORD_PTR answer = 0;
  SetLastError(0);
  if (SendMessageTimeoutW(window_, message, wParam, lParam, SMTO_ABORTIFHUNG | SMTO_BLOCK, time,
                          &answer) == 0) {
    throw NoAnswer(outcomeOfSilence(GetLastError()));
  }
  return static_cast<LRESULT>(answer);
}

void TargetWindow::refusePasswords() const {
  if ((style() & ES_PASSWORD) != 0 || ask(EM_GETPASSWORDCHAR) != 0) throw NoAnswer(Outcome::none);
}

std::u16string classNameOf(HWND window) {
  ClassName name{};
  const int length = GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return {name.begin(), name.begin() + length};
}

std::u16string realClassOf(HWND window) {
  ClassName name{};
  const UINT length = RealGetWindowClassW(window, name.data(), static_cast<UINT>(name.size()));
  return {name.begin(), name.begin() + length};
}

WindowScale scaleOf(HWND window) {
  WindowScale scale{.onScreen = outerBoxOf(window), .forTarget = {}};
  const TargetAwareness awareness(window);
  scale.forTarget = outerBoxOf(window);
  return scale;
}

ScreenPoint toClient(HWND window, ScreenPoint point) {
  POINT client{point.x, point.y};
  ScreenToClient(window, &client);
  return {static_cast<int>(client.x), static_cast<int>(client.y)};
}

ScreenBox fromClient(HWND window, const ScreenBox& box) {
  POINT origin{0, 0};
  ClientToScreen(window, &origin);
  const int x = static_cast<int>(origin.x);
  const int y = static_cast<int>(origin.y);
  return {box.left + x, box.top + y, box.right + x, box.bottom + y};
}

bool inClientArea(HWND window, ScreenPoint clientPoint) {
  RECT rect{};
  GetClientRect(window, &rect);
  return PtInRect(&rect, POINT{clientPoint.x, clientPoint.y}) != FALSE;
}

ScreenBox inClientArea(HWND window, const ScreenBox& box) {
  RECT rect{};
  GetClientRect(window, &rect);
  const ScreenBox client = boxOf(rect);
  return {std::max(box.left, client.left), std::max(box.top, client.top),
          std::min(box.right, client.right), std::min(box.bottom, client.bottom)};
}

int dpiOf(HWND window) { return static_cast<int>(GetDpiForWindow(window)); }

}  // namespace nhw32
