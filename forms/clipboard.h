#pragma once

#include <string_view>

#include "win32/win32.h"

namespace forms {

/// Replaces the clipboard's content by `text`; `owner` becomes its owner. A clipboard that another
/// program holds is tried again for 100 ms; then std::runtime_error says so.
void setClipboardText(HWND owner, std::u16string_view text);

}  // namespace forms
