#include "capture/nhw32/controls/control_question.h"

namespace nhw32 {

Answer answerOfControl(const Question& question,
                       const std::function<std::optional<PlacedWord>(
                           const TargetWindow& target, ScreenPoint clientPoint)>& read) try {
  const TargetWindow target(question.window);
  if (!target.visible()) return {};
  target.refusePasswords();
  const WindowScale scale = scaleOf(target.handle());
  const TargetAwareness awareness(target.handle());
  const ScreenPoint asked = toTarget(scale, question.point);
  const ScreenPoint point = toClient(target.handle(), asked);
  if (!inClientArea(target.handle(), point)) return {};
  const auto word = read(target, point);
  // Meanwhile the window may have gone, moved or shrunk.
  if (!word || !target.visible() || toClient(target.handle(), asked) != point ||
      !inClientArea(target.handle(), point)) {
    return {};
  }
  const ScreenBox box = inClientArea(target.handle(), word->box);
  return {.outcome = Outcome::word,
          .word = {word->text, toScreen(scale, fromClient(target.handle(), box))}};
} catch (const NoAnswer& silence) {
  return {.outcome = silence.outcome(), .word = {}};
}

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

}  // namespace nhw32
