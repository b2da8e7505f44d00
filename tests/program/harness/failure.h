#pragma once

#include <functional>
#include <stdexcept>
#include <string>

namespace harness {

/// Something that should have happened did not, or a call to the system failed.
class Failure : public std::runtime_error {
 public:
  explicit Failure(const std::string& what);

  /// What is to be done when one occurs, while the programs that it is about still stand there.
  static void setWitness(std::function<void()> witness);
};

}  // namespace harness
