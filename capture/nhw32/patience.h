#pragma once

#include <chrono>
#include <optional>
#include <vector>

#include "capture/nhw32/text_provider.h"

namespace nhw32 {

/// Remembers the windows that keep us waiting. One that ran out of time three times in a row is
/// left alone for a while, and after each further time for twice as long; an answer in time makes
/// up for everything, a refusal for nothing.
class Patience {
 public:
  using Time = std::chrono::steady_clock::time_point;

  static constexpr int kChances = 3;
  static constexpr std::chrono::seconds kFirstRest{5};
  static constexpr std::chrono::minutes kLongestRest{5};
  /// More windows than that are not remembered; the one longest unheard of is forgotten.
  static constexpr std::size_t kMostWindows = 64;

  /// Whether `window` may be asked now.
  [[nodiscard]] bool mayAsk(WindowId window, Time now) const;
  /// Takes note of how asking it ended.
  void note(WindowId window, Outcome outcome, Time now);

 private:
  struct Record {
    WindowId window = 0;
    int failures = 0;
    std::chrono::seconds rest{0};
    Time until{};
  };

  std::vector<Record> records_;  ///< the one noted last at the end
};

}  // namespace nhw32
