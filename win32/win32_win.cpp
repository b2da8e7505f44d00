#include "win32/win32.h"

#include <array>
#include <new>
#include <stdexcept>
#include <utility>

#include "text/utf.h"

// The conversions ask for the size first and then convert: the length in bytes depends on the code
// page.
namespace win32 {

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
  return fromWide(units);
}

// No exception may leave the callback: it is called by code of Windows.
std::vector<HWND> threadWindows() {
  struct Collected {
    std::vector<HWND> windows;
    bool outOfMemory = false;
  } collected;
  const auto collect = [](HWND window, LPARAM context) noexcept -> BOOL {
    auto& all = *reinterpret_cast<Collected*>(context);
    try {
      all.windows.push_back(window);
      return TRUE;
    } catch (const std::bad_alloc&) {
      all.outOfMemory = true;
      return FALSE;
    }
  };
  EnumThreadWindows(GetCurrentThreadId(), collect, reinterpret_cast<LPARAM>(&collected));
  if (collected.outOfMemory) throw std::bad_alloc();
  return std::move(collected.windows);
}

void throwLastError() {
  const DWORD code = GetLastError();
  std::array<wchar_t, 512> buffer{};
  DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                code, 0, buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
  while (length > 0 && (buffer[length - 1] == L'\r' || buffer[length - 1] == L'\n')) --length;
  const std::string text = text::toUtf8(fromWide({buffer.data(), length}));
  throw std::runtime_error(text.empty() ? "Windows error " + std::to_string(code) : text);
}

}  // namespace win32
