#pragma once

#include <chrono>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace dictionary {

/// Tells the person at the console how far the work is: one line a step, with the seconds since the
/// start.
class Progress {
 public:
  explicit Progress(std::ostream& log) : log_(log) {}

  void tell(std::string_view text);

 private:
  std::ostream& log_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

/// "1,060,000".
std::string grouped(std::size_t number);

}  // namespace dictionary
