#pragma once

#include <windows.h>

#include <string>
#include <vector>

/// What is really on the screen.
namespace support {

/// The colours of a rectangle of the screen, row by row.
std::vector<COLORREF> screenPixels(const RECT& rect);

/// The same once they no longer change.
std::vector<COLORREF> settledPixels(const RECT& rect);

/// Hides the windows `others`, for good. Whether the screen showed of the inside of `window`, but
/// for a caret, what it shows then.
bool isSeenWhole(HWND window, const std::vector<HWND>& others);

/// The colours of one of the system's icons (IDI_ERROR ...) on the background of dialogs.
std::vector<COLORREF> iconPixels(const wchar_t* icon, SIZE size);

/// Writes a picture of the whole screen; `file` is a path below the current directory, ending in
/// ".png". Folders are made as needed.
void saveScreenshot(const std::string& file);

/// The same of a part of it.
void saveScreenshot(const std::string& file, const RECT& rect);

}  // namespace support
