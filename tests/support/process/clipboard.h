#pragma once

#include <optional>
#include <string>

namespace support {

/// The text on the clipboard, if there is one.
std::optional<std::wstring> clipboardText();

/// Puts a text there.
void setClipboardText(const std::wstring& text);

}  // namespace support
