#include "bench/native/timings.h"

#include <algorithm>
#include <cstdio>

namespace bench {

void Timings::printHeading(const char* title) {
  std::printf("\n%-44s %8s %9s %9s %9s\n", title, "runs", "median", "99 %", "longest");
}

void Timings::print() const {
  if (milliseconds_.empty()) return;
  std::vector<double> sorted = milliseconds_;
  std::sort(sorted.begin(), sorted.end());
  const auto at = [&](double share) {
    return sorted[static_cast<std::size_t>(share * static_cast<double>(sorted.size() - 1))];
  };
  std::printf("%-44s %8zu %9.3f %9.3f %9.3f\n", name_.c_str(), sorted.size(), at(0.5), at(0.99),
              at(1));
}

}  // namespace bench
