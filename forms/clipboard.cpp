#include "forms/clipboard.h"

#include <stdexcept>

#include "forms/line_ends.h"
#include "forms/system_error.h"

namespace forms {
namespace {

constexpr DWORD kPatience = 100;  // ms

class OpenClipboardLock {
 public:
  explicit OpenClipboardLock(HWND owner) {
    const ULONGLONG start = GetTickCount64();
    while (!OpenClipboard(owner)) {
      if (GetTickCount64() - start >= kPatience) {
        throw std::runtime_error("剪贴板正被其他程序占用，请稍后再试。");
      }
      Sleep(5);
    }
  }
  ~OpenClipboardLock() { CloseClipboard(); }
  OpenClipboardLock(const OpenClipboardLock&) = delete;
  OpenClipboardLock& operator=(const OpenClipboardLock&) = delete;
};

HGLOBAL copyToGlobalMemory(const std::u16string& text) {
  const std::size_t bytes = (text.size() + 1) * sizeof(char16_t);
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  if (memory == nullptr) throw std::bad_alloc();
  CopyMemory(GlobalLock(memory), text.c_str(), bytes);
  GlobalUnlock(memory);
  return memory;
}

}  // namespace

void setClipboardText(HWND owner, std::u16string_view text) {
  const std::u16string lines = withWindowsLineEnds(text);
  const OpenClipboardLock lock(owner);
  EmptyClipboard();
  HGLOBAL memory = copyToGlobalMemory(lines);
  // The clipboard owns the memory once it has taken it.
  if (SetClipboardData(CF_UNICODETEXT, memory) == nullptr) {
    GlobalFree(memory);
    throwLastError();
  }
}

}  // namespace forms
