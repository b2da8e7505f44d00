#pragma once

#include <stdexcept>

namespace dictionary {

/// Work that cannot go on. what() is one sentence for the person at the console, in UTF-8.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace dictionary
