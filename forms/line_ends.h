#pragma once

#include <string>
#include <string_view>

namespace forms {

/// `text` with every line end (CR, LF or both) written as CR LF.
std::u16string withWindowsLineEnds(std::u16string_view text);

}  // namespace forms
