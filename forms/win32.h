#pragma once

// First: the others rest on it.
#include <windows.h>

#include <commctrl.h>
#include <richedit.h>
#include <shellscalingapi.h>
#include <windowsx.h>

#include <string>
#include <string_view>

/// The system's headers, and how the UTF-16 texts of widgets become its wide ones and back.
namespace forms {

static_assert(sizeof(wchar_t) == sizeof(char16_t), "wide texts of Windows are UTF-16");

/// `text` for a call that takes a wide text; valid as long as `text` is.
inline const wchar_t* wide(const std::u16string& text) {
  return reinterpret_cast<const wchar_t*>(text.c_str());
}

inline std::u16string fromWide(std::wstring_view text) { return {text.begin(), text.end()}; }

}  // namespace forms
