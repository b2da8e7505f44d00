#pragma once

#include "capture/nhw32/text_provider.h"

namespace nhw32 {

/// A window as the screen shows it and as its own program knows it: a program that is not aware of
/// the monitor's resolution lives in pixels of its own, which the system enlarges.
struct WindowScale {
  ScreenBox onScreen;
  ScreenBox forTarget;
};

/// The target's pixel that is shown at a pixel of the screen. Each of the screen's pixels is taken
/// at its centre.
ScreenPoint toTarget(const WindowScale& scale, ScreenPoint point);

/// The part of the screen that a box of the target's pixels takes up, no less than all of it.
ScreenBox toScreen(const WindowScale& scale, const ScreenBox& box);

}  // namespace nhw32
