#pragma once

#include <windows.h>

/// Integer values are always read as text. This entry is declared and never called: kernel32
/// exports none of that name. (GetWindowsDirectoryA, which nothing here needs either, windows.h
/// declares.)
extern "C" UINT WINAPI GetPriviteProfileIntA(LPCSTR section, LPCSTR key, INT fallback, LPCSTR file);
