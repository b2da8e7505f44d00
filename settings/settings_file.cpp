#include "settings/settings_file.h"

#include <limits>

#include "text/strings.h"

namespace user {

std::u16string profileValue(int returned, std::u16string_view buffer,
                            std::u16string_view fallback) {
  const auto trimmed = text::trimBlanks(buffer);
  return std::u16string(returned == 0 || trimmed.empty() ? fallback : trimmed);
}

std::optional<std::int16_t> toInteger16(std::u16string_view value) {
  using Limits = std::numeric_limits<std::int16_t>;
  std::u16string_view digits = text::trimBlanks(value);
  const bool negative = digits.starts_with(u'-');
  if (negative || digits.starts_with(u'+')) digits.remove_prefix(1);
  if (digits.empty()) return std::nullopt;
  // Stops at the first digit beyond the range, so that a long text cannot overflow.
  int number = 0;
  for (const char16_t digit : digits) {
    if (digit < u'0' || digit > u'9') return std::nullopt;
    number = number * 10 + (digit - u'0');
    if (number > Limits::max() + 1) return std::nullopt;  // 32768 is in range if negative
  }
  if (negative) number = -number;
  if (number > Limits::max()) return std::nullopt;
  return static_cast<std::int16_t>(number);
}

bool isOn(std::u16string_view value) { return toInteger16(value) == 1; }

}  // namespace user
