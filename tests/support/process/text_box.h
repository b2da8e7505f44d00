#pragma once

#include <windows.h>

#include <string>

namespace support {

/// Clicks into a text box of any program until it has the keyboard.
void takeKeyboard(HWND box);

/// Clicks into a text box, replaces what it holds by typing, and waits until it stands there.
void typeInto(HWND box, const std::wstring& text);

}  // namespace support
