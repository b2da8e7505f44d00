#pragma once

#include <string>
#include <string_view>

namespace forms {

/// `text` with every line end (CR, LF or both) written as CR LF.
std::u16string withWindowsLineEnds(std::u16string_view text);

/// Replaces the clipboard's content by `text`. A clipboard that another program holds is tried
/// again for 100 ms; then std::runtime_error says so.
void setClipboardText(std::u16string_view text);

}  // namespace forms
