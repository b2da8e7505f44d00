#pragma once

#include <string>
#include <string_view>

#include "win32/win32.h"

/// The running program, the programs it starts and those of other windows. Any thread.
namespace win32 {

/// Returns whether this process is the first of the user's session to claim `name`, the name of a
/// mutex. The claim is held until the process ends; only one name can be claimed.
bool claimOnlyInstance(const wchar_t* name);

/// Ends the process at once: no destructor of the caller's runs.
[[noreturn]] void endProgram();

/// Returns the folder of the program's file, without a trailing backslash.
std::u16string applicationFolder();

/// Returns the file name of a window's program, without its folder; "" if Windows does not tell it.
std::u16string programOf(HWND window);

/// Starts the program file `path`, shown normally. Its command line is `path` in quotes, a blank
/// and `arguments` as they stand. Throws std::runtime_error with the system's text if the
/// program cannot be started.
void startProgram(const std::u16string& path, std::u16string_view arguments);

}  // namespace win32
