#include "forms/system_error.h"

#include <array>
#include <stdexcept>

#include "forms/win32.h"
#include "text/utf.h"

namespace forms {

void throwLastError() {
  const DWORD code = GetLastError();
  std::array<wchar_t, 512> buffer{};
  DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                code, 0, buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
  while (length > 0 && (buffer[length - 1] == L'\r' || buffer[length - 1] == L'\n')) --length;
  const std::string text = text::toUtf8(fromWide({buffer.data(), length}));
  throw std::runtime_error(text.empty() ? "Windows error " + std::to_string(code) : text);
}

}  // namespace forms
