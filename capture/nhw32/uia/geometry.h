#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include "capture/nhw32/reader.h"
#include "text/readings.h"

/// The portable part of reading by UI Automation: its rectangles, texts and retries. What comes
/// from a provider is checked here before it is used.
namespace nhw32 {

/// Returns the first of `rectangles` that contains the centre of the pixel `point`, rounded
/// outwards to whole pixels. Each consists of four numbers: left, top, width, height in physical
/// screen pixels. Returns nullopt if none does, if the count is not a multiple of four, or if a
/// rectangle before the match is invalid (not finite, negative size, beyond 1,000,000 pixels).
std::optional<ScreenBox> boxUnder(std::span<const double> rectangles, ScreenPoint point);

/// Returns whether `text` is as long as one character: a code unit, a surrogate pair or a CR LF.
bool isOneCharacter(std::u16string_view text);

/// Returns the readings of `text` without the blanks around it, other than those of a part of it
/// ("well" of "well-known"); nullopt if no reading is the whole of it. A full stop at its end may
/// belong to a reading or not.
std::optional<text::Readings> onlyWord(std::u16string_view text);

/// Delays further attempts after a failure. Not thread-safe.
class Retry {
 public:
  using Time = std::chrono::steady_clock::time_point;

  explicit Retry(std::chrono::milliseconds pause) : pause_(pause) {}

  /// Returns whether an attempt may be made: none failed yet, or `pause` has passed since.
  [[nodiscard]] bool due(Time now) const { return !failed_ || now - *failed_ >= pause_; }
  void failed(Time now) { failed_ = now; }

 private:
  std::chrono::milliseconds pause_;
  std::optional<Time> failed_;
};

}  // namespace nhw32
