#include "bench/timings.h"

#include <algorithm>
#include <cstdio>

namespace bench {
namespace {

const char* verdict(double time, double aim) { return time > aim ? "MISSED" : "met"; }

}  // namespace

double Timings::at(double share) const {
  if (milliseconds_.empty()) return 0;
  std::vector<double> sorted = milliseconds_;
  std::sort(sorted.begin(), sorted.end());
  return sorted[static_cast<std::size_t>(share * static_cast<double>(sorted.size() - 1))];
}

void Timings::printHeading(const char* title) {
  std::printf("\n%-44s %8s %9s %9s %9s  %s\n", title, "runs", "median", "99 %", "longest",
              "aim (median, 99 %)");
}

void Timings::print() const {
  if (milliseconds_.empty()) return;
  std::printf("%-44s %8zu %9.3f %9.3f %9.3f", name_.c_str(), milliseconds_.size(), median(),
              at(kTail), at(1));
  if (aim_) std::printf("  %.2f %s", *aim_, verdict(median(), *aim_));
  if (tailAim_) std::printf(", %.2f %s", *tailAim_, verdict(at(kTail), *tailAim_));
  if (longestAim_) std::printf("  longest %.2f %s", *longestAim_, verdict(at(1), *longestAim_));
  std::printf("\n");
}

void printWithParts(const Timings& whole, std::initializer_list<const Timings*> parts) {
  whole.print();
  for (const Timings* part : parts) part->print();
  if (!whole.missed()) return;
  const auto* const most = std::max_element(
      parts.begin(), parts.end(),
      [](const Timings* a, const Timings* b) { return a->median() < b->median(); });
  if (most == parts.end()) return;
  std::printf("  missed: most of it is \"%s\", %.3f ms of %.3f\n", (*most)->name().c_str(),
              (*most)->median(), whole.median());
}

}  // namespace bench
