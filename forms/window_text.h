#pragma once

#include <string>

#include "win32/win32.h"

namespace forms {

/// The whole text of a window of our own.
inline std::u16string windowText(HWND window) {
  std::wstring buffer(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  const int length = GetWindowTextW(window, buffer.data(), static_cast<int>(buffer.size()));
  return win32::fromWide({buffer.data(), static_cast<std::size_t>(length)});
}

}  // namespace forms
