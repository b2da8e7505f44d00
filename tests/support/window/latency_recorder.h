#pragma once

#include <algorithm>
#include <chrono>

namespace support {

/// Records how long calls block the calling thread. Measure no more calls about one window than are
/// made before the service backs off from it: further ones are quick and would hide the slow ones.
class LatencyRecorder {
 public:
  using Time = std::chrono::microseconds;

  template <class Action>
  void measure(Action action) {
    const auto begin = std::chrono::steady_clock::now();
    action();
    const auto took = std::chrono::duration_cast<Time>(std::chrono::steady_clock::now() - begin);
    longest_ = std::max(longest_, took);
    ++calls_;
    if (took > kWaited) ++waits_;
  }

  [[nodiscard]] Time longest() const { return longest_; }

  /// Whether at least half of the calls took longer than kWaited: calls that wait for another
  /// program are all slow, while a busy machine delays only some.
  [[nodiscard]] bool wait() const { return 2 * waits_ >= calls_; }

 private:
  /// Less than a message may wait for an answer (50 ms).
  static constexpr Time kWaited = std::chrono::milliseconds(40);

  Time longest_{0};
  int calls_ = 0;
  int waits_ = 0;
};

}  // namespace support
