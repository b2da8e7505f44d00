#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace text {

/// `whole` where it has at most `longest` UTF-16 code units, at least 3; otherwise its beginning
/// and its end, which tell more about a path or a message than its middle, joined by "…" to at most
/// `longest` units. No surrogate pair is cut in two.
std::u16string shortened(std::u16string_view whole, std::size_t longest);

}  // namespace text
