#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

/// What a word reader is asked and answers. Portable: a window is a number here.
namespace nhw32 {

/// A point of the screen in physical pixels, as a program that is aware of every monitor's
/// resolution sees them. Where a parameter is called a client point, the same type holds pixels of
/// a window's client area, as the window's own program counts them.
struct ScreenPoint {
  int x = 0;
  int y = 0;
  bool operator==(const ScreenPoint&) const = default;
};

/// A rectangle in the same pixels; right and bottom are exclusive.
struct ScreenBox {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  bool operator==(const ScreenBox&) const = default;
};

/// A window handle as a number, so that portable code can keep and compare it. 0 is no window.
using WindowId = std::uintptr_t;

/// Which word is under `point` (physical screen pixels) in `window`?
struct Question {
  WindowId window = 0;
  ScreenPoint point;
  bool operator==(const Question&) const = default;
};

/// A word as the window holds it, and its rectangle in physical screen pixels.
struct Word {
  std::u16string text;
  ScreenBox box;
  bool operator==(const Word&) const = default;
};

/// How asking a window ended.
enum class Outcome {
  kWord,       ///< the word was found
  kNone,       ///< there is no word, or the window does not support reading
  kRefused,    ///< the window may not be asked, or no longer exists
  kOutOfTime,  ///< the window did not answer in time
};

struct Answer {
  Outcome outcome = Outcome::kNone;
  Word word;  ///< only for Outcome::kWord
};

/// Reads words from windows of any program. Made, used and destroyed by one worker thread.
class WordReader {
 public:
  virtual ~WordReader() = default;
  /// Returns the word under the question's point. Errors of the window are reported by the outcome;
  /// the caller treats an exception as Outcome::kNone. Returns within the reader's own time limit.
  virtual Answer wordAt(const Question& question) = 0;
};

/// Returns the reader for all windows: it chooses the kind of reader by the window's class
/// (readerKindFor) for each question and backs off from windows that keep timing out (Backoff).
/// The thread has to be per-monitor DPI aware. Implemented in router_win.cpp.
std::unique_ptr<WordReader> makeWindowReader();

/// Returns the current time; tests pass a clock of their own.
using Clock = std::function<std::chrono::steady_clock::time_point()>;

}  // namespace nhw32
