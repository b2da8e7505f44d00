#include "forms/clipboard.h"

#include <new>
#include <stdexcept>

#include "forms/text_lines.h"
#include "win32/handles.h"
#include "win32/win32.h"

namespace forms {
namespace {

/// Programs that hold the clipboard longer are rare; the user is not kept waiting noticeably, in
/// ms.
constexpr DWORD kTimeout = 100;

/// Holds the clipboard open until the end of the scope.
class ScopedClipboard {
 public:
  explicit ScopedClipboard(HWND owner) {
    const ULONGLONG start = GetTickCount64();
    while (!OpenClipboard(owner)) {
      if (GetTickCount64() - start >= kTimeout) {
        throw std::runtime_error("剪贴板正被其他程序占用，请稍后再试。");
      }
      Sleep(5);
    }
  }
  ~ScopedClipboard() { CloseClipboard(); }
  ScopedClipboard(const ScopedClipboard&) = delete;
  ScopedClipboard& operator=(const ScopedClipboard&) = delete;
};

/// Throws std::bad_alloc.
win32::OwnedMemory copyToGlobalMemory(const std::u16string& text) {
  const std::size_t bytes = (text.size() + 1) * sizeof(char16_t);
  win32::OwnedMemory memory(GlobalAlloc(GMEM_MOVEABLE, bytes));
  void* copy = memory ? GlobalLock(memory.get()) : nullptr;
  if (copy == nullptr) throw std::bad_alloc();
  CopyMemory(copy, text.c_str(), bytes);
  GlobalUnlock(memory.get());
  return memory;
}

}  // namespace

void setClipboardText(HWND owner, std::u16string_view text) {
  win32::OwnedMemory memory = copyToGlobalMemory(withWindowsLineEnds(text));
  const ScopedClipboard opened(owner);
  EmptyClipboard();
  if (SetClipboardData(CF_UNICODETEXT, memory.get()) == nullptr) win32::throwLastError();
  // The clipboard owns the memory now.
  static_cast<void>(memory.release());
}

}  // namespace forms
