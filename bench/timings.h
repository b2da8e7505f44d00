#pragma once

#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace bench {

/// How long repeated runs of one piece of work took.
class Timings {
 public:
  explicit Timings(std::string name) : name_(std::move(name)) {}

  /// Runs `work` once and keeps its time.
  template <typename Work>
  auto time(Work work) {
    const Stopwatch stopwatch(milliseconds_);
    return work();
  }

  /// Writes one line of a table: name, number of runs, median, 99th percentile and longest in ms.
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

  std::string name_;
  std::vector<double> milliseconds_;
};

}  // namespace bench
