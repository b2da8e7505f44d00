#include "capture/nhw32/control_question.h"

namespace nhw32 {

Answer answerOfControl(const Question& question,
                       const std::function<std::optional<PlacedWord>(
                           const TargetWindow& target, ScreenPoint clientPoint)>& read) try {
  const TargetWindow target(question.window);
  if (!target.visible()) return {};
  target.refusePasswords();
  const WindowScale scale = scaleOf(target.handle());
  const TargetAwareness awareness(target.handle());
  const ScreenPoint point = toClient(target.handle(), toTarget(scale, question.point));
  if (!inClientArea(target.handle(), point)) return {};
  const auto word = read(target, point);
  if (!word || !target.visible()) return {};
  return {.outcome = Outcome::word,
          .word = {word->text, toScreen(scale, fromClient(target.handle(), word->box))}};
} catch (const NoAnswer& silence) {
  return {.outcome = silence.outcome(), .word = {}};
}

std::optional<int> caretHeight(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  if (GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) == FALSE ||
      info.hwndCaret != window || info.rcCaret.bottom <= info.rcCaret.top) {
    return std::nullopt;
  }
  return static_cast<int>(info.rcCaret.bottom - info.rcCaret.top);
}

bool hasLines(WindowId window) { return TargetWindow(window).ask(EM_GETLINECOUNT) > 0; }

}  // namespace nhw32
