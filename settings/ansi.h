#pragma once

#include <string>
#include <string_view>

/// The boundary to calls that take or give 8-bit text: the system's ANSI code page, which is GBK on
/// a Chinese system.
namespace user {

/// What the code page lacks becomes the nearest that it has, or a question mark.
std::string toAnsi(std::u16string_view text);
std::u16string fromAnsi(std::string_view text);

}  // namespace user
