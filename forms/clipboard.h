#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "win32/win32.h"

namespace forms {

/// Replaces the clipboard's content by `text`, with CR LF line ends; `owner` becomes its owner.
/// Waits up to 100 ms for another program that holds the clipboard open. Throws std::runtime_error
/// with a text for the user after that, or with the system's text if the clipboard does not take
/// the data.
void setClipboardText(HWND owner, std::u16string_view text);

/// Returns the clipboard's text; nullopt if it has none, or if another program holds the clipboard
/// open for longer than 100 ms. `owner` is a window of this thread.
std::optional<std::u16string> clipboardText(HWND owner);

}  // namespace forms
