#pragma once

#include <cstdint>
#include <functional>
#include <utility>

namespace text {

/// Counts the steps of work that may take too long, and asks now and then whether to give it up.
class Effort {
 public:
  /// Work that is never given up.
  Effort() = default;
  /// `isOver` is asked after every kStepsBetweenLooks steps; once it says yes, it is asked at each
  /// step until it says no, which begins other work.
  explicit Effort(std::function<bool()> isOver) : isOver_(std::move(isOver)) {}

  /// Adds steps that are done; false where the work is to be given up.
  [[nodiscard]] bool spend(std::size_t steps) {
    left_ -= static_cast<std::int64_t>(steps);
    return left_ > 0 || goesOn();
  }

  /// Whether the last steps were too many.
  [[nodiscard]] bool isGivenUp() const { return left_ <= 0; }

 private:
  /// A step compares one character or byte: so many take 0.1 to 1 ms.
  static constexpr std::int64_t kStepsBetweenLooks = 100'000;

  bool goesOn() {
    const bool over = isOver_ && isOver_();
    left_ = over ? 0 : kStepsBetweenLooks;
    return !over;
  }

  std::function<bool()> isOver_;
  std::int64_t left_ = kStepsBetweenLooks;
};

}  // namespace text
