#include "capture/popup_watch.h"

// The system tells the time of the last input, but not what it was, and a movement is an input too.
// Pointer, time and the mouse's own reports change one after the other, so that a movement may be
// seen in two looks: an input belongs to a movement that is seen in the same look, in the one
// before or in the one after. Any other one came while the pointer stood still. Of a key that
// comes with a movement nothing is seen, but then it comes up, or the next one goes down.
namespace capture {
namespace {

/// A bar that appears at its beginning, as where a text grows below the view, has scrolled nothing.
bool hasScrolled(std::optional<int> before, std::optional<int> now) {
  return before.value_or(0) != now.value_or(0);
}

bool isAsBefore(const WordWindow& before, const WordWindow& now) {
  return now.shown == before.shown && now.topmost == before.topmost && now.left == before.left &&
         now.top == before.top && now.right == before.right && now.bottom == before.bottom &&
         !hasScrolled(before.horizontal, now.horizontal) &&
         !hasScrolled(before.vertical, now.vertical);
}

}  // namespace

PopupWatch::PopupWatch(const PopupSight& first)
    : window_(first.window), foreground_(first.foreground), last_(first) {}

std::optional<PopupEnd> PopupWatch::look(const PopupSight& now) {
  if (foreground_ == 0) foreground_ = now.foreground;
  const bool atRest = inputAtRest(now);
  if (!isAsBefore(window_, now.window)) return PopupEnd::kWindow;
  if (now.foreground != 0 && now.foreground != foreground_) return PopupEnd::kForeground;
  return atRest ? std::optional(PopupEnd::kInput) : std::nullopt;
}

bool PopupWatch::inputAtRest(const PopupSight& now) {
  const bool moved = now.mouseMoved || now.x != last_.x || now.y != last_.y;
  const bool input = now.input != last_.input;
  const bool confirmed = inputSeen_ && !moved;
  inputSeen_ = input && !moved && !moved_;
  moved_ = moved;
  last_ = now;
  return now.mouseUsed || confirmed;
}

}  // namespace capture
