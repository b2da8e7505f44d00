#pragma once

#include <string>

#include "win32/win32.h"

namespace win32 {

/// Returns the text that the user of an input method has committed, for WM_IME_COMPOSITION with
/// `changes` as its lParam; "" for any other change, and where the text cannot be read.
std::u16string composedText(HWND window, LPARAM changes);

}  // namespace win32
