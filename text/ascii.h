#pragma once

namespace text {

/// The lower case of an ASCII capital; every other unit as it is.
template <typename Unit>
constexpr Unit lowerAscii(Unit unit) {
  return unit >= Unit{'A'} && unit <= Unit{'Z'} ? static_cast<Unit>(unit + ('a' - 'A')) : unit;
}

}  // namespace text
