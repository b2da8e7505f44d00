#pragma once

#include <windows.h>

#include <chrono>

namespace support {

/// Presses a button with the mouse and waits, as a user does, until it looks pressed; a press that
/// is lost while windows change places is repeated. The mouse stays down. Returns the time from the
/// press until the button was seen to be down.
std::chrono::duration<double, std::milli> pressButton(HWND button);

/// Presses a button and lets go.
void clickButton(HWND button);

}  // namespace support
