#pragma once

#include <string>

/// The settings file: a private-profile file whose texts are in the system's ANSI code page.
namespace user {

/// Stored value of `key`, or `fallback` where file, section or key are missing or the value is
/// blank. Values are cut to 254 ANSI characters.
std::u16string getINIProfileString(const std::u16string& section, const std::u16string& key,
                                   const std::u16string& fallback, const std::u16string& file);

/// Stores `value`, creating section, key and file as needed. A failure is not reported.
void WriteINIProfileString(const std::u16string& section, const std::u16string& key,
                           const std::u16string& value, const std::u16string& file);

/// The system directory, without a trailing backslash; "" where the system names none.
std::u16string systemDirectory();

/// The settings file of this user, found afresh: "system.ini" in the system directory where this
/// user can write it, else in the folder Lexilo of the local application data.
std::u16string settingsFile();

}  // namespace user
