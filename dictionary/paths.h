#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "data/error.h"

namespace dictionary {

/// A path in UTF-8, as SQLite and the console take it.
std::string utf8Path(const std::filesystem::path& path);

/// The path that a UTF-8 text names.
std::filesystem::path pathOf(std::string_view utf8);

/// The path between quotes, for messages.
std::string displayName(const std::filesystem::path& path);

/// Throws Failure unless there is a file of that name.
void requireFile(const std::filesystem::path& path);

/// Throws Failure, with the engine's own words, for a database that it cannot read.
[[noreturn]] void throwUnreadable(const std::filesystem::path& database, const data::Error& error);

}  // namespace dictionary
