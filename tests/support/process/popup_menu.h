#pragma once

#include <windows.h>

#include "tests/support/process/process.h"

/// The popup menu that a program has dropped down. Its items cannot be read from outside; they are
/// chosen as users choose them.
namespace support::popup_menu {

/// The menu's window, once it has been there for as long as a user takes to see it.
HWND waitForMenu(const Process& program);

/// Whether there is one now.
bool isOpen(const Process& program);

/// Chooses by keys: `steps` times Down (negative: Up), then Enter. Separators are no steps.
void choose(int steps);

/// Closes it with Esc.
void dismiss(const Process& program);

}  // namespace support::popup_menu
