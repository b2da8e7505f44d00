#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace user {

/// Section of the settings file that holds all of Lexilo's keys.
inline constexpr std::u16string_view kSettingsSection = u"SystemSetting";

/// Length of the buffer that a stored value is read into, in ANSI characters; the platform cuts a
/// longer value to one less.
inline constexpr int kProfileBufferLength = 255;

/// What a profile read yields: `fallback` where the platform reported nothing (`returned` is 0) or
/// the buffer holds nothing but blanks, else the buffer without its outer blanks.
std::u16string profileValue(int returned, std::u16string_view buffer, std::u16string_view fallback);

/// Decimal number of `value`, blanks around it allowed. nullopt where it is no whole number or lies
/// outside the 16-bit signed range.
std::optional<std::int16_t> toInteger16(std::u16string_view value);

}  // namespace user
