#include "capture/nhw32/router.h"

#include <windows.h>

#include <array>

#include "capture/nhw32/controls/readers.h"
#include "capture/nhw32/policy.h"
#include "capture/nhw32/uia/client.h"

namespace nhw32 {
namespace {

using ClassName = std::array<wchar_t, 257>;  // class names have at most 256 characters

std::u16string classNameOf(HWND window) {
  ClassName name{};
  const int length = GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return {name.begin(), name.begin() + length};
}

/// Returns the system class from which the window's class was derived if Windows knows it,
/// otherwise the class name.
std::u16string realClassOf(HWND window) {
  ClassName name{};
  const UINT length = RealGetWindowClassW(window, name.data(), static_cast<UINT>(name.size()));
  return {name.begin(), name.begin() + length};
}

/// Chooses the reader by the window's class, again for each question, since handles are reused. A
/// window that has the class name of a text control but no lines is no text control, and is read by
/// UI Automation.
class WindowReader : public WordReader {
 public:
  Answer wordAt(const Question& question) override try {
    auto* const window = reinterpret_cast<HWND>(question.window);
    const ReaderKind kind = readerKindFor(classNameOf(window), realClassOf(window));
    if (kind == ReaderKind::kUia || !hasLines(question.window)) return uia_->wordAt(question);
    auto word =
        kind == ReaderKind::kEdit ? editWordAt(question) : richEditWordAt(question, memory_);
    return word ? Answer{Outcome::kWord, std::move(*word)} : Answer{};
  } catch (const NoAnswer& failure) {
    return {.outcome = failure.outcome(), .word = {}};
  }

  void rest() override { memory_.free(); }

 private:
  std::unique_ptr<WordReader> uia_ = makeUiaReader();
  KeptMemory memory_;
};

}  // namespace

// The back-off is outermost: it applies to whichever reader a window gets.
std::unique_ptr<WordReader> makeWindowReader() {
  return std::make_unique<BackoffReader>(std::make_unique<WindowReader>());
}

}  // namespace nhw32
