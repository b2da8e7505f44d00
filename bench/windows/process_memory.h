#pragma once

#include <filesystem>

namespace bench {

/// What a process has in memory, in KiB, as the kernel below Wine counts it.
struct Memory {
  double resident = 0;      ///< all pages that are in memory
  double proportional = 0;  ///< the same, shared pages divided by the number of their users
  double own = 0;           ///< pages that no other process has
};

/// A running program as the machine below Wine sees it.
class ProcessBelow {
 public:
  /// The process that runs this program file. Throws support::Failure where none does, or more than
  /// one.
  explicit ProcessBelow(const std::filesystem::path& program);

  /// Waits until the process has stopped taking or giving back memory, and returns what it has.
  /// Throws support::Failure when that takes longer than ten seconds.
  [[nodiscard]] Memory settledMemory() const;

 private:
  [[nodiscard]] Memory memory() const;

  std::filesystem::path folder_;  // in /proc
};

}  // namespace bench
