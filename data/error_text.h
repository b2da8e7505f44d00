#pragma once

#include <cstddef>
#include <string>

#include "data/connection.h"
#include "data/error.h"

/// What a user is told about a failed operation on a database file.
namespace data {

/// Longest path and longest message of the engine that a description quotes in full, in UTF-16 code
/// units. Of longer ones it quotes both ends, so that the whole description stays short enough for
/// a message box. A path within Windows' MAX_PATH is never shortened. The engine's own messages
/// have some 60 units, but may quote all that was typed, thousands of units.
inline constexpr std::size_t kLongestShownPath = 260;
inline constexpr std::size_t kLongestShownEngineText = 160;

/// Describes a failure in Chinese and UTF-8: what is wrong with which file, what to do about it
/// and, behind an empty line, the engine's own message on one line. `file` is the path in UTF-8,
/// shown as the program was given it; `access` is what the file was to be opened for.
std::string failureText(const std::string& file, Access access, const Error& error);

/// Throws `error` with such a description, or as it is for a mistake of the calling code.
[[noreturn]] void throwDescribed(const std::string& file, Access access, const Error& error);

/// Runs an operation on `file` and returns its result. An Error that it throws leaves described.
template <typename Operation>
auto describingFailures(const std::string& file, Access access, Operation operation) {
  try {
    return operation();
  } catch (const Error& error) {
    throwDescribed(file, access, error);
  }
}

}  // namespace data
