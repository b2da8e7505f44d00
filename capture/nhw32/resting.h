#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <utility>

#include "capture/nhw32/reader.h"

/// When no window is asked although a question is armed: because it has just said that there is no
/// word, or because the user is at work at that place. Portable; nothing here calls a window.
namespace nhw32 {

/// Exponential back-off for a pointer at rest where there is no word. The question that was asked
/// last is, if its answer was kNone or kRefused, asked again only kMinDelay after it was asked, and
/// after twice as long each further time, at most kMaxDelay. Any other point or window is asked at
/// once, and so is a question that ended with a word. Windows that run out of time have a back-off
/// of their own (policy.h). Without it, a program would search its text for a pointer parked over
/// it ten times a second. Not thread-safe.
class RestingQuestion {
 public:
  using Time = std::chrono::steady_clock::time_point;

  static constexpr std::chrono::milliseconds kMinDelay{100};
  static constexpr std::chrono::milliseconds kMaxDelay{1600};

  /// Returns whether `question` may be asked now.
  [[nodiscard]] bool mayAsk(const Question& question, Time now) const;
  /// Records how `question`, asked at `asked`, ended.
  void note(const Question& question, Outcome outcome, Time asked);

 private:
  Question question_;
  std::chrono::milliseconds delay_{0};  ///< 0 while no question rests
  Time until_{};
};

/// Passes questions on to another reader, except for one that rests, which it answers with
/// Outcome::kNone.
class RestingReader : public WordReader {
 public:
  explicit RestingReader(std::unique_ptr<WordReader> reader,
                         Clock clock = std::chrono::steady_clock::now)
      : reader_(std::move(reader)), clock_(std::move(clock)) {}

  Answer wordAt(const Question& question) override;
  void rest() override { reader_->rest(); }

 private:
  std::unique_ptr<WordReader> reader_;
  Clock clock_;
  RestingQuestion resting_;
};

/// The place at which the user has closed a popup by working on, by typing say: no word is looked
/// for there until the pointer has left it, so that nothing opens over the work. None at first. Not
/// thread-safe.
class QuietPlace {
 public:
  /// How far the pointer has to go along either axis, in pixels: as far as it takes to close a
  /// popup.
  static constexpr int kLeftAfter = 6;

  /// Begins at `place`, and ends any earlier place.
  void begin(ScreenPoint place) { place_ = place; }
  /// To be told where the pointer is; ends the place if that is kLeftAfter pixels from it.
  void pointerAt(ScreenPoint point);
  /// Returns whether the word at `point`, where the pointer is, may be looked for: not at the quiet
  /// place, nor while a mouse button is down, as when a selection is dragged.
  [[nodiscard]] bool mayAsk(ScreenPoint point, bool buttonDown);

 private:
  std::optional<ScreenPoint> place_;
};

}  // namespace nhw32
