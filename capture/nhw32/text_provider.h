#pragma once

#include <cstdint>
#include <string>

namespace nhw32 {

/// A point of the screen in its own pixels, as a program that is aware of every monitor's
/// resolution sees them.
struct ScreenPoint {
  int x = 0;
  int y = 0;
  bool operator==(const ScreenPoint&) const = default;
};

/// A rectangle in the same pixels; right and bottom lie just outside.
struct ScreenBox {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  bool operator==(const ScreenBox&) const = default;
};

/// A window handle as a number, so that rules about windows need no windows.
using WindowId = std::uintptr_t;

/// Which word stands under `point` of `window`?
struct Question {
  WindowId window = 0;
  ScreenPoint point;
  bool operator==(const Question&) const = default;
};

/// A word as it stands in the window, and the place that it takes up.
struct Word {
  std::u16string text;
  ScreenBox box;
  bool operator==(const Word&) const = default;
};

enum class Outcome {
  word,
  none,       ///< no word there, or the window does not say
  refused,    ///< the window may not be asked, or is gone
  outOfTime,  ///< the window did not answer in time
};

struct Answer {
  Outcome outcome = Outcome::none;
  Word word;  ///< where outcome is word
};

/// One way to ask windows for the words in them. Used by the worker thread alone.
class TextProvider {
 public:
  virtual ~TextProvider() = default;
  /// Asks, and says in its outcome what went wrong; an exception counts as "none". Nothing waits
  /// longer than the way allows.
  virtual Answer wordAt(const Question& question) = 0;
};

}  // namespace nhw32
