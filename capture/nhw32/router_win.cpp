#include "capture/nhw32/router.h"

#include <windows.h>

#include <array>
#include <thread>
#include <utility>

#include "capture/nhw32/controls/readers.h"
#include "capture/nhw32/policy.h"
#include "capture/nhw32/resting.h"
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
/// UI Automation. Throws NoAnswer.
ReaderKind readerOf(WindowId id) {
  auto* const window = reinterpret_cast<HWND>(id);
  const ReaderKind kind = readerKindFor(classNameOf(window), realClassOf(window));
  return kind == ReaderKind::kUia || !hasLines(id) ? ReaderKind::kUia : kind;
}

class WindowReader : public WordReader {
 public:
  Answer wordAt(const Question& question) override try {
    const ReaderKind kind = readerOf(question.window);
    if (kind != ReaderKind::kRichEdit) memory_.free();
    if (kind == ReaderKind::kUia) return uia_->wordAt(question);
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

// The back-offs are outermost: they apply to whichever reader a window gets. That from windows that
// time out is around the other one, which then never sees an answer that no window gave.
std::unique_ptr<WordReader> makeWindowReader(const Clock& clock) {
  auto resting = std::make_unique<RestingReader>(std::make_unique<WindowReader>(), clock);
  return std::make_unique<BackoffReader>(std::move(resting), clock);
}

Diagnosis describe(WindowId id) {
  auto* const window = reinterpret_cast<HWND>(id);
  Diagnosis diagnosis;
  diagnosis.className = classNameOf(window);
  diagnosis.realClassName = realClassOf(window);
  return diagnosis;
}

Diagnosis diagnose(const Question& question) {
  Diagnosis diagnosis = describe(question.window);
  auto begin = std::chrono::steady_clock::now();
  try {
    diagnosis.reader = readerOf(question.window);
    diagnosis.isPassword =
        *diagnosis.reader != ReaderKind::kUia && TargetWindow(question.window).isPassword();
  } catch (const NoAnswer& failure) {
    diagnosis.answer.outcome = failure.outcome();
    return diagnosis;
  }
  const auto reader = makeWindowReader();
  diagnosis.answer = reader->wordAt(question);
  if (diagnosis.reader == ReaderKind::kUia) {
    // The first contact with a program takes longer than all later questions, as after a rest.
    std::this_thread::sleep_for(2 * RestingQuestion::kMinDelay);
    begin = std::chrono::steady_clock::now();
    diagnosis.answer = reader->wordAt(question);
  }
  diagnosis.time = std::chrono::duration_cast<std::chrono::microseconds>(
      std::chrono::steady_clock::now() - begin);
  return diagnosis;
}

}  // namespace nhw32
