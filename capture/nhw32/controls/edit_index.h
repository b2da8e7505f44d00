#pragma once

#include <cstddef>
#include <cstdint>

namespace nhw32 {

/// Edit controls answer with 16 bits of a number. The first number from `base` upwards that ends
/// in these bits: of a character where its line's first is known, of a line where the first visible
/// one is.
constexpr std::size_t unwrapped(std::size_t base, std::uint16_t low) {
  return base + static_cast<std::uint16_t>(low - static_cast<std::uint16_t>(base));
}

}  // namespace nhw32
