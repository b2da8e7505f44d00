#include "capture/nhw32/patience.h"

#include <algorithm>

namespace nhw32 {

bool Patience::mayAsk(WindowId window, Time now) const {
  const auto record = std::ranges::find(records_, window, &Record::window);
  return record == records_.end() || now >= record->until;
}

void Patience::note(WindowId window, Outcome outcome, Time now) {
  if (outcome == Outcome::refused) return;
  Record record{.window = window};
  if (const auto old = std::ranges::find(records_, window, &Record::window);
      old != records_.end()) {
    record = *old;
    records_.erase(old);
  }
  if (outcome != Outcome::outOfTime) return;
  ++record.failures;
  if (record.failures >= kChances) {
    record.rest = std::clamp<std::chrono::seconds>(2 * record.rest, kFirstRest, kLongestRest);
    record.until = now + record.rest;
  }
  if (records_.size() == kMostWindows) records_.erase(records_.begin());
  records_.push_back(record);
}

}  // namespace nhw32
