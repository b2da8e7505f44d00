#pragma once

#include <algorithm>
#include <chrono>

namespace support {

/// How long calls hold up the thread that makes them. No more calls about one window than are made
/// before it is left alone: waiting would hide among the rest.
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

  /// Whether the calls wait for what they are about: then all of them are slow. A busy machine
  /// takes the processor away from some of any calls.
  [[nodiscard]] bool wait() const { return 2 * waits_ >= calls_; }

 private:
  /// Less than a message may wait for an answer (50 ms).
  static constexpr Time kWaited = std::chrono::milliseconds(40);

  Time longest_{0};
  int calls_ = 0;
  int waits_ = 0;
};

}  // namespace support
