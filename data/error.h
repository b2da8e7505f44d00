#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

struct sqlite3;

/// Failures of database operations, and their descriptions for the user.
namespace data {

/// A failed database operation. Its texts are UTF-8.
///
/// what() is the text that is shown. Operations on a database file that a user knows
/// (Database and what uses it) describe the failure to the user, in Chinese (see failureText).
/// Below them, and for a mistake of the calling code (SQLITE_MISUSE: a column that does not exist,
/// no current row), it is the plain English of engineText().
class Error : public std::runtime_error {
 public:
  /// `code` is a result code of the engine, `description` what what() returns; all texts are
  /// copied.
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

/// Throws the connection's last failure as Error.
[[noreturn]] void raise(sqlite3* connection);

/// Throws the connection's last failure as Error unless `result` is SQLITE_OK.
void check(sqlite3* connection, int result);

/// What a database file is opened for. A failure to open it is described accordingly.
enum class Access { kRead, kWrite };

/// Longest path and longest message of the engine that a description quotes in full, in UTF-16 code
/// units. Of longer ones it quotes both ends, so that the whole description stays short enough for
/// a message box. A path within Windows' MAX_PATH (260) is never shortened. The engine's own
/// messages have some 60 units, but may quote all that was typed, thousands of units.
inline constexpr std::size_t kMaxShownPath = 260;
inline constexpr std::size_t kMaxShownEngineText = 160;

/// Returns the description of a failure in Chinese and UTF-8: what is wrong with which file, what
/// to do about it and, after an empty line, the engine's own message on one line. `file` is the
/// path in UTF-8, shown as the program was given it; `access` is what the file was to be opened
/// for.
std::string failureText(const std::string& file, Access access, const Error& error);

/// Throws `error` with such a description; a mistake of the calling code (SQLITE_MISUSE) unchanged.
[[noreturn]] void throwDescribed(const std::string& file, Access access, const Error& error);

/// Runs an operation on `file` and returns its result. An Error that it throws is replaced as
/// throwDescribed() does; any other exception passes unchanged.
template <typename Operation>
auto describingFailures(const std::string& file, Access access, Operation operation) {
  try {
    return operation();
  } catch (const Error& error) {
    throwDescribed(file, access, error);
  }
}

}  // namespace data
