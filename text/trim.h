#pragma once

#include <string_view>

namespace user {

/// `text` without leading and trailing blanks (U+0020 only).
constexpr std::u16string_view trimBlanks(std::u16string_view text) {
  const auto first = text.find_first_not_of(u' ');
  if (first == std::u16string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

}  // namespace user
