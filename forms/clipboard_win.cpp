#include "forms/clipboard.h"

#include <algorithm>
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

/// Holds the clipboard open until the end of the scope, unless another program does.
class ScopedClipboard {
 public:
  explicit ScopedClipboard(HWND owner) {
    const ULONGLONG start = GetTickCount64();
    while (!isOpen_) {
      isOpen_ = OpenClipboard(owner) != FALSE;
      if (isOpen_ || GetTickCount64() - start >= kTimeout) return;
      Sleep(5);
    }
  }
  ~ScopedClipboard() {
    if (isOpen_) CloseClipboard();
  }
  ScopedClipboard(const ScopedClipboard&) = delete;
  ScopedClipboard& operator=(const ScopedClipboard&) = delete;
  [[nodiscard]] bool isOpen() const { return isOpen_; }

 private:
  bool isOpen_ = false;
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
  if (!opened.isOpen()) throw std::runtime_error("剪贴板正被其他程序占用，请稍后再试。");
  EmptyClipboard();
  if (SetClipboardData(CF_UNICODETEXT, memory.get()) == nullptr) win32::throwLastError();
  // The clipboard owns the memory now.
  static_cast<void>(memory.release());
}

// The system makes CF_UNICODETEXT of the other text formats. The memory is the clipboard's, and
// another program may have put a text there without the null character at its end.
std::optional<std::u16string> clipboardText(HWND owner) {
  const ScopedClipboard opened(owner);
  HANDLE memory = opened.isOpen() ? GetClipboardData(CF_UNICODETEXT) : nullptr;
  const auto* units = memory == nullptr ? nullptr : static_cast<char16_t*>(GlobalLock(memory));
  if (units == nullptr) return std::nullopt;
  const char16_t* const end = units + (GlobalSize(memory) / sizeof(char16_t));
  std::u16string text(units, std::find(units, end, u'\0'));
  GlobalUnlock(memory);
  return text;
}

}  // namespace forms
