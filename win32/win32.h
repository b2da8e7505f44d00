#pragma once

// First: the others rest on it.
#include <windows.h>

#include <commctrl.h>
#include <richedit.h>
#include <shellscalingapi.h>
#include <windowsx.h>

#include <string>
#include <string_view>
#include <vector>

/// Windows without widgets: the system's headers, its texts and its errors. All functions may be
/// called from any thread.
namespace win32 {

static_assert(sizeof(wchar_t) == sizeof(char16_t), "wide texts of Windows are UTF-16");

/// Returns `text` for a call that takes a wide text. The pointer is valid as long as `text` is.
inline const wchar_t* wide(const std::u16string& text) {
  return reinterpret_cast<const wchar_t*>(text.c_str());
}

/// Returns a wide text of Windows as ours.
inline std::u16string fromWide(std::wstring_view text) { return {text.begin(), text.end()}; }

/// Returns `text` in the system's ANSI code page, which is GBK on a Chinese system, for calls that
/// take 8-bit text. What the code page lacks becomes the nearest that it has, or a question mark.
std::string toAnsi(std::u16string_view text);

/// Returns a text in the system's ANSI code page as UTF-16.
std::u16string fromAnsi(std::string_view text);

/// Returns the top-level windows of the calling thread, visible or not. Throws std::bad_alloc.
std::vector<HWND> threadWindows();

/// Returns the function `name` of `library` in the system directory, which stays loaded; null if
/// there is none, with the reason in GetLastError(). For libraries that are not to be loaded with
/// the program: those named in its import table are looked for in its own folder first, unless they
/// are among the system's known ones ("Dynamic-link library search order").
template <class Function>
Function* systemFunction(const wchar_t* library, const char* name) {
  HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (module == nullptr) return nullptr;
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

/// Throws std::runtime_error with the system's own text for GetLastError(), in UTF-8.
[[noreturn]] void throwLastError();

}  // namespace win32
