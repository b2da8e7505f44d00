#pragma once

#include <string>
#include <string_view>

namespace support {

/// For messages and for the machine below Wine.
std::string utf8(std::wstring_view text);

/// The reverse.
std::wstring wide(std::string_view text);

}  // namespace support
