#pragma once

#include <string>

namespace support {

/// While it lives, another program stands still, as one does that waits for a disk or a debugger.
class SuspendedProcess {
 public:
  /// Stops the one program whose command line contains `mark`. Throws Failure where not exactly one
  /// does.
  explicit SuspendedProcess(const std::string& mark);
  ~SuspendedProcess();
  SuspendedProcess(const SuspendedProcess&) = delete;
  SuspendedProcess& operator=(const SuspendedProcess&) = delete;

 private:
  std::string mark_;
};

}  // namespace support
