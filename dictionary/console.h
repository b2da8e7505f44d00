#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "data/error.h"

/// Shared by the commands of kkbuild as a console program: failures, file names, progress and
/// memory. Every text for the console is UTF-8. kkbuild has one thread.
namespace dictionary {

/// Thrown where a command cannot continue. what() is one sentence for the user, in UTF-8, without a
/// full stop; runCommand() prints it.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Returns the path in UTF-8, as SQLite and the console take it. On Windows path::string() would
/// return it in the ANSI code page.
std::string utf8Path(const std::filesystem::path& path);

/// Returns the path that a UTF-8 text names. Inverse of utf8Path().
std::filesystem::path pathOf(std::string_view utf8);

/// Returns the path in UTF-8 between double quotes, for messages.
std::string displayName(const std::filesystem::path& path);

/// Throws Failure unless `path` names a regular file.
void requireFile(const std::filesystem::path& path);

/// Throws Failure with the engine's message: `database` cannot be read.
[[noreturn]] void throwUnreadable(const std::filesystem::path& database, const data::Error& error);

/// Returns a number in decimal with its digits in groups: "1,060,000".
std::string grouped(std::size_t number);

/// Returns a share as "0.8 %"; "0.0 %" of nothing.
std::string percentage(std::size_t part, std::size_t whole);

/// Reports the steps of a long command: one line a step, with the seconds since construction. Keeps
/// a reference to `log`, which must outlive it.
class Progress {
 public:
  explicit Progress(std::ostream& log) : log_(log) {}

  /// Writes one line and flushes, so that it is seen at once.
  void report(std::string_view text);

 private:
  std::ostream& log_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

/// Returns the peak resident memory of this process in bytes (peak working set under Windows); 0 if
/// the system does not report it.
std::size_t peakMemory();

/// Makes the console read standard output and standard error as UTF-8. Does nothing on systems
/// where that is the default.
void useUtf8Output();

}  // namespace dictionary
