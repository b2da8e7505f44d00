#pragma once

#include <chrono>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace bench {

/// How long repeated runs of one piece of work took.
class Timings {
 public:
  /// `aim` is what the median is to stay below, in ms.
  explicit Timings(std::string name, std::optional<double> aim = {})
      : name_(std::move(name)), aim_(aim) {}

  /// Runs `work` once and keeps its time.
  template <typename Work>
  auto time(Work work) {
    const Stopwatch stopwatch(milliseconds_);
    return work();
  }

  [[nodiscard]] const std::string& name() const { return name_; }
  /// The median in ms; 0 without runs.
  [[nodiscard]] double median() const { return at(0.5); }
  /// Sets what the median and the 99th percentile are to stay below, in ms.
  void aimAt(double median, double tail) {
    aim_ = median;
    tailAim_ = tail;
  }

  /// Sets what the longest is to stay below, in ms.
  void aimAtLongest(double longest) { longestAim_ = longest; }

  /// Whether there is an aim that the median, the 99th percentile or the longest does not keep to.
  [[nodiscard]] bool missed() const {
    return (aim_ && median() > *aim_) || (tailAim_ && at(kTail) > *tailAim_) ||
           (longestAim_ && at(1) > *longestAim_);
  }

  /// Writes one line of a table: name, number of runs, median, 99th percentile and longest in ms,
  /// and the aims.
  void print() const;
  static void printHeading(const char* title);

 private:
  /// Appends the time that it existed.
  class Stopwatch {
   public:
    explicit Stopwatch(std::vector<double>& milliseconds) : milliseconds_(milliseconds) {}
    Stopwatch(const Stopwatch&) = delete;
    Stopwatch& operator=(const Stopwatch&) = delete;
    ~Stopwatch() {
      const auto end = std::chrono::steady_clock::now();
      milliseconds_.push_back(std::chrono::duration<double, std::milli>(end - start_).count());
    }

   private:
    std::vector<double>& milliseconds_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  };

  static constexpr double kTail = 0.99;

  [[nodiscard]] double at(double share) const;

  std::string name_;
  std::optional<double> aim_;
  std::optional<double> tailAim_;
  std::optional<double> longestAim_;
  std::vector<double> milliseconds_;
};

/// Writes the lines of a piece of work and of its parts; where the work misses its aim, also which
/// part takes most.
void printWithParts(const Timings& whole, std::initializer_list<const Timings*> parts);

}  // namespace bench
