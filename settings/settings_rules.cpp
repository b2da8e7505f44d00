#include "settings/settings_rules.h"

namespace user {

std::u16string_view trimBlanks(std::u16string_view text) {
  const auto first = text.find_first_not_of(u' ');
  if (first == std::u16string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

std::u16string profileValue(int returned, std::u16string_view buffer,
                            std::u16string_view fallback) {
  const auto trimmed = trimBlanks(buffer);
  return std::u16string(returned == 0 || trimmed.empty() ? fallback : trimmed);
}

}  // namespace user
