#pragma once

#include <string>

/// The settings that Lexilo keeps in system.ini of the system directory.
namespace support::settings {

/// The text under a key, otherwise "".
std::wstring read(const std::wstring& key);

/// Puts a text there.
void write(const std::wstring& key, const std::wstring& value);

/// Removes all of them, as before the first run.
void clear();

}  // namespace support::settings
