#pragma once

#include <string>
#include <string_view>

namespace user {

/// Section of the settings file that holds all of Lexilo's keys.
inline constexpr std::u16string_view kSettingsSection = u"SystemSetting";

/// Length of the buffer that a stored value is read into, in ANSI characters; the platform cuts a
/// longer value to one less.
inline constexpr int kProfileBufferLength = 255;

/// `text` without leading and trailing blanks (U+0020 only).
std::u16string_view trimBlanks(std::u16string_view text);

/// What a profile read yields: `fallback` where the platform reported nothing (`returned` is 0) or
/// the buffer holds nothing but blanks, else the buffer without its outer blanks.
std::u16string profileValue(int returned, std::u16string_view buffer, std::u16string_view fallback);

}  // namespace user
