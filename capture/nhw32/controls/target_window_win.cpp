#include "capture/nhw32/controls/target_window.h"

#include <algorithm>
#include <array>

#include "capture/nhw32/policy.h"

namespace nhw32 {
namespace {

using ClassName = std::array<wchar_t, 257>;  // class names have at most 256 characters

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
  if (left.count() <= 0) throw NoAnswer(Outcome::kOutOfTime);
  const auto time = static_cast<UINT>(std::min(left, kMessageTime).count());
  DWORD_PTR answer = 0;
  SetLastError(0);
  if (SendMessageTimeoutW(window_, message, wParam, lParam, SMTO_ABORTIFHUNG | SMTO_BLOCK, time,
                          &answer) == 0) {
    throw NoAnswer(outcomeOfSendTimeout(GetLastError()));
  }
  return static_cast<LRESULT>(answer);
}

void TargetWindow::refusePasswords() const {
  if ((style() & ES_PASSWORD) != 0 || ask(EM_GETPASSWORDCHAR) != 0) throw NoAnswer(Outcome::kNone);
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
  const ScopedTargetAwareness awareness(window);
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

std::optional<ScreenBox> caretIn(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  if (GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) == FALSE ||
      info.hwndCaret != window || info.rcCaret.bottom <= info.rcCaret.top) {
    return std::nullopt;
  }
  return boxOf(info.rcCaret);
}

bool hasLines(WindowId window) { return TargetWindow(window).ask(EM_GETLINECOUNT) > 0; }

Answer answerOfControl(const Question& question,
                       const std::function<std::optional<PlacedWord>(
                           const TargetWindow& target, ScreenPoint clientPoint)>& read) try {
  const TargetWindow target(question.window);
  if (!target.visible()) return {};
  target.refusePasswords();
  const WindowScale scale = scaleOf(target.handle());
  const ScopedTargetAwareness awareness(target.handle());
  const ScreenPoint asked = toTarget(scale, question.point);
  const ScreenPoint point = toClient(target.handle(), asked);
  if (!inClientArea(target.handle(), point)) return {};
  const auto word = read(target, point);
  // The window may have been closed, moved or resized meanwhile.
  if (!word || !target.visible() || toClient(target.handle(), asked) != point ||
      !inClientArea(target.handle(), point)) {
    return {};
  }
  const ScreenBox box = inClientArea(target.handle(), word->box);
  return {.outcome = Outcome::kWord,
          .word = {word->text, toScreen(scale, fromClient(target.handle(), box))}};
} catch (const NoAnswer& failure) {
  return {.outcome = failure.outcome(), .word = {}};
}

}  // namespace nhw32
