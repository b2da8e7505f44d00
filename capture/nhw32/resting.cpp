#include "capture/nhw32/resting.h"

#include <algorithm>
#include <cstdlib>

namespace nhw32 {

bool RestingQuestion::mayAsk(const Question& question, Time now) const {
  return delay_.count() == 0 || question != question_ || now >= until_;
}

// The delay counts from the time of asking: from the end of a slow answer, it would add to the time
// that the next probe comes too late.
void RestingQuestion::note(const Question& question, Outcome outcome, Time asked) {
  if (outcome != Outcome::kNone && outcome != Outcome::kRefused) {
    delay_ = {};
    return;
  }
  delay_ = question == question_ ? std::clamp(2 * delay_, kMinDelay, kMaxDelay) : kMinDelay;
  question_ = question;
  until_ = asked + delay_;
}

Answer RestingReader::wordAt(const Question& question) {
  const auto now = clock_();
  if (!resting_.mayAsk(question, now)) return {};
  Answer answer = reader_->wordAt(question);
  resting_.note(question, answer.outcome, now);
  return answer;
}

void QuietPlace::pointerAt(ScreenPoint point) {
  if (place_ && (std::abs(point.x - place_->x) >= kLeftAfter ||
                 std::abs(point.y - place_->y) >= kLeftAfter)) {
    place_.reset();
  }
}

bool QuietPlace::mayAsk(ScreenPoint point, bool buttonDown) {
  pointerAt(point);
  return !buttonDown && !place_;
}

}  // namespace nhw32
