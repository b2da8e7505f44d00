#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The settings file: a private-profile file whose texts are in the system's ANSI code page. What
/// is not in that code page is stored as the system's substitute for it. All functions work on the
/// file itself, nothing is kept between calls, and none of them fails but for std::bad_alloc.
namespace user {

/// Section of the settings file that holds all of Lexilo's keys.
inline constexpr std::u16string_view kSettingsSection = u"SystemSetting";

/// Length of the buffer that a stored value is read into, in ANSI characters; the platform cuts a
/// longer value to one less.
inline constexpr int kProfileBufferLength = 255;

/// What a profile read returns: `fallback` where the platform reported nothing (`returned` is 0) or
/// the buffer holds nothing but blanks, else the buffer without its outer blanks.
std::u16string profileValue(int returned, std::u16string_view buffer, std::u16string_view fallback);

/// Decimal number of `value`, blanks around it allowed. nullopt where it is no whole number or is
/// outside the 16-bit signed range.
std::optional<std::int16_t> toInteger16(std::u16string_view value);

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
