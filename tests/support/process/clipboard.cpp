#include "tests/support/process/clipboard.h"

#include <windows.h>

#include <cstring>

#include "tests/support/wait.h"

namespace support {
namespace {

/// The clipboard while it is ours. Others may hold it for a moment.
class OpenClipboard {
 public:
  OpenClipboard() {
    waitFor("the clipboard", [] { return ::OpenClipboard(nullptr) != FALSE; });
  }
  OpenClipboard(const OpenClipboard&) = delete;
  OpenClipboard& operator=(const OpenClipboard&) = delete;
  ~OpenClipboard() { CloseClipboard(); }
};

}  // namespace

std::optional<std::wstring> clipboardText() {
  const OpenClipboard open;
  HANDLE memory = GetClipboardData(CF_UNICODETEXT);
  if (memory == nullptr) return std::nullopt;
  const auto* units = static_cast<const wchar_t*>(GlobalLock(memory));
  std::wstring text(units);
  GlobalUnlock(memory);
  return text;
}

void setClipboardText(const std::wstring& text) {
  const OpenClipboard open;
  EmptyClipboard();
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  std::memcpy(GlobalLock(memory), text.c_str(), bytes);
  GlobalUnlock(memory);
  SetClipboardData(CF_UNICODETEXT, memory);
}

}  // namespace support
