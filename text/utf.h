#pragma once

#include <string>
#include <string_view>

namespace text {

/// UTF-16 to UTF-8. An unpaired surrogate becomes U+FFFD.
std::string toUtf8(std::u16string_view utf16);

/// UTF-8 to UTF-16. Each byte that is part of no valid sequence becomes U+FFFD.
std::u16string toUtf16(std::string_view utf8);

}  // namespace text
