#pragma once

namespace text {

/// The bit in which the two cases of an ASCII or Latin-1 letter differ, in its last byte of UTF-8
/// too.
inline constexpr char kCaseBit = 0x20;

/// The lower case of an ASCII capital; every other unit as it is.
template <typename Unit>
constexpr Unit lowerAscii(Unit unit) {
  return unit >= Unit{'A'} && unit <= Unit{'Z'} ? static_cast<Unit>(unit + ('a' - 'A')) : unit;
}

}  // namespace text
