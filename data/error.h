#pragma once

#include <stdexcept>
#include <string>

namespace data {

/// A failed database operation. what() is the engine's own message, in UTF-8.
class Error : public std::runtime_error {
 public:
  Error(int code, const std::string& message) : std::runtime_error(message), code_(code) {}

  /// The engine's extended result code (SQLITE_...), or SQLITE_MISUSE for an error of the caller.
  [[nodiscard]] int code() const { return code_; }

 private:
  int code_;
};

}  // namespace data
