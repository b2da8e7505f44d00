#include "win32/input_method.h"

namespace win32 {
namespace {

class ScopedInputContext {
 public:
  explicit ScopedInputContext(HWND window) : window_(window), context_(ImmGetContext(window)) {}
  ~ScopedInputContext() {
    if (context_ != nullptr) ImmReleaseContext(window_, context_);
  }
  ScopedInputContext(const ScopedInputContext&) = delete;
  ScopedInputContext& operator=(const ScopedInputContext&) = delete;
  [[nodiscard]] HIMC get() const { return context_; }

 private:
  HWND window_;
  HIMC context_;
};

}  // namespace

std::u16string composedText(HWND window, LPARAM changes) {
  if ((changes & GCS_RESULTSTR) == 0) return {};
  const ScopedInputContext context(window);
  if (context.get() == nullptr) return {};
  // In bytes; negative for an error.
  const LONG size = ImmGetCompositionStringW(context.get(), GCS_RESULTSTR, nullptr, 0);
  if (size <= 0) return {};
  std::u16string text(static_cast<std::size_t>(size) / sizeof(char16_t), u'\0');
  const LONG copied =
      ImmGetCompositionStringW(context.get(), GCS_RESULTSTR, text.data(), static_cast<DWORD>(size));
  return copied == size ? text : std::u16string();
}

}  // namespace win32
