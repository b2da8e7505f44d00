#pragma once

#include "capture/popup_watch.h"
#include "win32/win32.h"

namespace capture {

/// The place of a popup's word: the window there, and what the user does meanwhile. No call waits
/// for another program, no hook is set, and nothing is learnt of a key but that there was an input.
/// User-interface thread only; one at a time.
class WordPlace {
 public:
  /// `place` in screen pixels. The system reports the mouse's movements to `popup` as WM_INPUT from
  /// here on; where it refuses that, movements of less than a pixel count as inputs.
  WordPlace(HWND popup, POINT place);
  ~WordPlace();
  WordPlace(const WordPlace&) = delete;
  WordPlace& operator=(const WordPlace&) = delete;

  /// To be called with the lParam of each WM_INPUT of `popup`, which its default procedure handles
  /// as well.
  void noteMouse(LPARAM input);

  /// Returns what is seen now; the mouse since the last look.
  [[nodiscard]] PopupSight look();

 private:
  [[nodiscard]] WordWindow window() const;

  POINT place_;
  POINT pointer_ = place_;  ///< at the last look that could see it
  HWND window_;
  bool mouseMoved_ = false;
  bool mouseUsed_ = false;
};

}  // namespace capture
