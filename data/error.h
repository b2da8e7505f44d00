#pragma once

#include <stdexcept>
#include <string>

namespace data {

/// A failed database operation. Its texts are UTF-8.
///
/// what() is for whoever the failure is shown to. Operations on a database file that a user knows
/// (Database and all that stands on it, writeCell) describe the failure to the user, in Chinese
/// (see error_text.h). Below them, and for a mistake of the calling code (SQLITE_MISUSE: a column
/// that does not exist, no current row), it is the plain English of engineText().
class Error : public std::runtime_error {
 public:
  Error(int code, const std::string& engineText) : Error(code, engineText, engineText) {}
  Error(int code, const std::string& engineText, const std::string& description)
      : std::runtime_error(description), engineText_(engineText), code_(code) {}

  /// The engine's extended result code (SQLITE_...), or SQLITE_MISUSE for an error of the caller.
  [[nodiscard]] int code() const { return code_; }

  /// The engine's own message, in English: for tools, logs and tests.
  [[nodiscard]] const char* engineText() const noexcept { return engineText_.what(); }

 private:
  std::runtime_error engineText_;  // Deliberate: unlike a string it is copied without throwing.
  int code_;
};

}  // namespace data
