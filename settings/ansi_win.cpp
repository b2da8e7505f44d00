#include "settings/ansi.h"

#include <windows.h>

namespace user {

std::string toAnsi(std::u16string_view text) {
  const auto* units = reinterpret_cast<const wchar_t*>(text.data());
  const int length = static_cast<int>(text.size());
  const int size = WideCharToMultiByte(CP_ACP, 0, units, length, nullptr, 0, nullptr, nullptr);
  std::string ansi(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_ACP, 0, units, length, ansi.data(), size, nullptr, nullptr);
  return ansi;
}

std::u16string fromAnsi(std::string_view text) {
  const int length = static_cast<int>(text.size());
  const int size = MultiByteToWideChar(CP_ACP, 0, text.data(), length, nullptr, 0);
  std::wstring units(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text.data(), length, units.data(), size);
  return {units.begin(), units.end()};
}

}  // namespace user
