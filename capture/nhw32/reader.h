#pragma once

#include <chrono>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>

#include "text/readings.h"

/// What a word reader is asked and answers. Portable: a window is a number here.
///
/// Errors: inside a reader, a call that the window does not answer throws NoAnswer, wherever it is
/// made. WordReader::wordAt catches it and returns its outcome; outside readers no error is thrown.
/// std::optional is for what may be missing although the window answers: a word under the point, a
/// line after the last one.
namespace nhw32 {

/// A point in physical pixels of the virtual screen, as a per-monitor DPI aware thread counts them;
/// (0, 0) is the top left corner of the primary monitor. Pixels as another process counts them are
/// TargetPoint and ClientPoint (controls/coordinates.h).
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

/// Which word is under `point` in `window`?
struct Question {
  WindowId window = 0;
  ScreenPoint point;
  bool operator==(const Question&) const = default;
};

/// The word at a place, and its rectangle. Which reading is meant there depends on a dictionary,
/// which the service does not have. Their ranges are those in the text that the reader has read,
/// which is gone.
struct Word {
  text::Readings readings;
  ScreenBox box;
  bool operator==(const Word&) const = default;
};

/// How asking a window ended.
enum class Outcome {
  kWord,          ///< the word was found
  kNone,          ///< there is no word, or the window does not support reading
  kRefused,       ///< the window may not be asked, or no longer exists
  kOutOfTime,     ///< the window did not answer in time
  kUiaOutOfTime,  ///< UI Automation did not answer in time
};

struct Answer {
  Outcome outcome = Outcome::kNone;
  Word word;  ///< only for Outcome::kWord
};

/// Thrown inside a reader if the window gives no usable answer; never leaves WordReader::wordAt.
class NoAnswer : public std::exception {
 public:
  /// `outcome` is what the question ends with; not kWord.
  explicit NoAnswer(Outcome outcome) : outcome_(outcome) {}
  [[nodiscard]] Outcome outcome() const { return outcome_; }
  [[nodiscard]] const char* what() const noexcept override { return "the window gives no answer"; }

 private:
  Outcome outcome_;
};

/// Reads words from windows of any program. Made, used and destroyed by one worker thread.
class WordReader {
 public:
  virtual ~WordReader() = default;
  /// Returns the word under the question's point. Errors of the window are reported by the outcome;
  /// the caller treats any exception, such as std::bad_alloc, as Outcome::kNone. Returns within the
  /// reader's own time limit.
  virtual Answer wordAt(const Question& question) = 0;
  /// Frees what is kept in other programs between two questions. Called when there will be no
  /// question about them for a while.
  virtual void rest() {}
};

/// Returns the current time; tests pass a clock of their own.
using Clock = std::function<std::chrono::steady_clock::time_point()>;

}  // namespace nhw32
