#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace data {

/// The parts of an SQL text, one behind the other.
inline std::u16string joined(std::initializer_list<std::u16string_view> parts) {
  std::u16string whole;
  for (const std::u16string_view part : parts) whole.append(part);
  return whole;
}

}  // namespace data
