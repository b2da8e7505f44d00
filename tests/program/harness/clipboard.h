#pragma once

#include <optional>
#include <string>

namespace harness {

/// The text on the clipboard, if there is one.
std::optional<std::wstring> clipboardText();

/// Puts a text there.
void setClipboardText(const std::wstring& text);

}  // namespace harness
