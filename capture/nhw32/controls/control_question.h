#pragma once

#include <functional>

#include "capture/nhw32/controls/control_text.h"
#include "capture/nhw32/controls/target_window.h"

namespace nhw32 {

/// Answers a question about a text control. `read` reads the control's text by messages and is
/// called once it is known that the control shows what it holds.
Answer answerOfControl(const Question& question,
                       const std::function<std::optional<PlacedWord>(
                           const TargetWindow& target, ScreenPoint clientPoint)>& read);

/// The same for a control whose text `Text` reads, made from the TargetWindow.
template <class Text>
Answer answerOfControlAs(const Question& question) {
  return answerOfControl(question, [](const TargetWindow& target, ScreenPoint clientPoint) {
    Text text(target);
    return wordUnder(text, clientPoint);
  });
}

/// The caret where it stands in this window, in pixels of the client area; never empty. Under
/// TargetAwareness.
std::optional<ScreenBox> caretIn(HWND window);

/// Whether a window answers as text controls do: one that only sounds like it by its class's name
/// has no lines. Throws NoAnswer where it does not answer.
bool hasLines(WindowId window);

}  // namespace nhw32
