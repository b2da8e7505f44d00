#pragma once

#include <cstdint>
#include <string>

namespace text {

/// The decimal digits of `number`, behind a minus sign where it is negative.
inline std::u16string decimal(std::int64_t number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

}  // namespace text
