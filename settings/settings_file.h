#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The settings file: a private-profile file (sections of "key=value" lines) whose texts are in the
/// system's ANSI code page. Characters that the code page lacks are stored as the system's
/// substitutes for them. All functions work on the file itself and keep nothing between calls. They
/// throw nothing but std::bad_alloc, and may be called from any thread.
namespace user {

/// Section of the settings file with all of Lexilo's keys.
inline constexpr std::u16string_view kSettingsSection = u"SystemSetting";

/// Length of the buffers that the platform fills with a value or with the system directory, in
/// bytes of the ANSI code page. Longer values are cut to one byte less.
inline constexpr int kAnsiBufferLength = 255;

/// Returns the value for what GetPrivateProfileString returned and wrote: `fallback` where it
/// returned 0 or `buffer` holds nothing but blanks, otherwise `buffer` without its outer blanks.
std::u16string profileValue(int returned, std::u16string_view buffer, std::u16string_view fallback);

/// Returns `value`, a decimal number with an optional sign and blanks around it. Returns nullopt
/// where it is not a whole number or is outside the 16-bit signed range.
std::optional<std::int16_t> toInteger16(std::u16string_view value);

/// Returns whether `value` switches something on: the number 1, in any spelling of toInteger16.
bool isOn(std::u16string_view value);

/// Returns the stored value of `key`, or `fallback` where file, section or key are missing or the
/// value is blank. Values are cut to kAnsiBufferLength - 1 bytes.
std::u16string getINIProfileString(const std::u16string& section, const std::u16string& key,
                                   const std::u16string& fallback, const std::u16string& file);

/// Stores `value`, creating section, key and file as needed. A failure is not reported.
void WriteINIProfileString(const std::u16string& section, const std::u16string& key,
                           const std::u16string& value, const std::u16string& file);

/// Returns the system directory, without a trailing backslash; "" if its path takes more than
/// kAnsiBufferLength - 1 bytes.
std::u16string systemDirectory();

/// Returns the path of this user's settings file, determined anew by each call: "system.ini" in the
/// system directory if this user can write it, otherwise in the folder Lexilo of the local
/// application data folder, which is created where it is missing. The ANSI code page can name the
/// path if the file system gives it a short one at least.
std::u16string settingsFile();

/// Returns whether this user's settings file switches further windows on (the key FurtherWindows;
/// capture/further_windows.h): off where it is missing. Read anew by each call.
bool furtherWindows();

}  // namespace user
