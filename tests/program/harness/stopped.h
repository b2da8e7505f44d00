#pragma once

#include <string>

namespace harness {

/// While it lives, another program stands still, as one does that waits for a disk or a debugger.
class Stopped {
 public:
  /// Stops the one program whose command line contains `mark`. Throws Failure where not exactly one
  /// does.
  explicit Stopped(const std::string& mark);
  ~Stopped();
  Stopped(const Stopped&) = delete;
  Stopped& operator=(const Stopped&) = delete;

 private:
  std::string mark_;
};

}  // namespace harness
