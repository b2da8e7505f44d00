#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include "capture/nhw32/text_provider.h"

/// What can be decided about answers of UI Automation without asking it.
namespace nhw32 {

/// The first of `rectangles` that holds the middle of the pixel `point`, in whole pixels. Each
/// takes four numbers: left, top, width, height. Nothing where none does, where the numbers are no
/// whole rectangles, or where one is no rectangle of a screen (not finite, negative, huge).
std::optional<ScreenBox> boxUnder(std::span<const double> rectangles, ScreenPoint point);

/// Whether `text` is what one place of a text can hold: a code unit, a pair of them, a line end.
bool isOneCharacter(std::u16string_view text);

/// The word that is all of `text` but blanks around it; empty where there is more or none.
std::u16string_view onlyWord(std::u16string_view text);

/// When something that failed is to be tried again.
class Retry {
 public:
  using Time = std::chrono::steady_clock::time_point;

  explicit Retry(std::chrono::milliseconds pause) : pause_(pause) {}

  [[nodiscard]] bool due(Time now) const { return !failed_ || now - *failed_ >= pause_; }
  void failed(Time now) { failed_ = now; }

 private:
  std::chrono::milliseconds pause_;
  std::optional<Time> failed_;
};

}  // namespace nhw32
