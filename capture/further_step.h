#pragma once

#include <functional>
#include <optional>

#include "capture/further_windows.h"
#include "settings/settings_file.h"
#include "win32/program.h"

namespace capture {

/// Has the service asked about further windows (further_windows.h), if the settings want it. Asks
/// nothing by itself of the window under the pointer. User-interface thread only.
class FurtherStep {
 public:
  /// To be called after each probe; `point` is the pointer, in screen pixels. The word is reported
  /// to `host`. Throws std::overflow_error for a point beyond 16 bits.
  void look(HWND host, const POINT& point);

  /// Tells whether the settings want it; called once, when the pointer is first over a further
  /// window: to look for the settings file takes memory and a file's trial. Tests set a function of
  /// their own, as for the others.
  std::function<bool()> isWanted = user::furtherWindows;
  std::function<std::u16string(HWND)> programOf = win32::programOf;
  std::function<FurtherRest::Time()> clock = std::chrono::steady_clock::now;

 private:
  std::optional<bool> wanted_;
  FurtherRest rest_;
  bool ours_ = false;  ///< the question that was armed last is one of this step
};

}  // namespace capture
