#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

/// Windows that are asked for the word under the pointer only if the user wants it: browsers and
/// whatever else tells its text to clients of UI Automation, but pays for each such client. They
/// are asked beside the probes and more reluctantly: without the strip, and only where the pointer
/// rests. Pure and portable; further_step.h acts.
namespace capture {

/// Returns the first name of the second table that a class name contains: names of its own, then
/// those of the probe's table, all without regard to ASCII case. nullopt if there is none, and for
/// windows that are probed (probedAs). The view is valid for ever.
std::optional<std::string_view> furtherAs(std::string_view className);

/// Returns whether the windows of a program (its file name without the folder; "" if that is not
/// known) are left alone although the table admits them: Visual Studio Code and the editors made
/// from it, which change how they show a text as soon as they see a client of UI Automation; and a
/// program that is not known, since it may be one of those.
bool isLeftAlone(std::u16string_view program);

/// What is under the pointer, and what the user's hands do.
struct FurtherSight {
  /// A window is of one table at most; of none, it is not asked.
  enum class Window { kOther, kProbed, kFurther };

  Window kind = Window::kOther;
  std::uintptr_t window = 0;  ///< a number that stands for the window
  int x = 0;                  ///< the pointer, in screen pixels
  int y = 0;
  bool inputDown = false;  ///< a key or a mouse button is down; only for kFurther
  bool armed = false;      ///< the service is at work on a question
};

/// When a further window is asked: as long as the pointer rests on it, from kRest after it came to
/// rest, or after the last key or button went up. The questions that are repeated then have the
/// back-off of the service (nhw32::RestingQuestion), and end once a word was found.
class FurtherRest {
 public:
  using Time = std::chrono::steady_clock::time_point;

  /// Longer than a probe waits: who reads on moves the pointer across a page all the time.
  static constexpr std::chrono::milliseconds kRest{300};

  enum class Act {
    kNothing,
    kAsk,     ///< arm the service at the pointer
    kCancel,  ///< disarm it, unless the question is not one of ours
  };

  /// To be called after each probe.
  Act look(const FurtherSight& sight, Time now);

 private:
  [[nodiscard]] bool rests(const FurtherSight& sight) const;

  FurtherSight place_;
  Time since_{};
  bool asked_ = false;  ///< at this place
};

}  // namespace capture
