#pragma once

#include "capture/nhw32/reader.h"

namespace nhw32 {

/// A window's rectangle in physical screen pixels and in those of its own process. They differ if
/// the process is not aware of the monitor's DPI: Windows then scales its window.
struct WindowScale {
  ScreenBox onScreen;
  ScreenBox forTarget;
};

/// Converts a physical screen pixel to the target's pixel shown there. Maps pixel centres.
ScreenPoint toTarget(const WindowScale& scale, ScreenPoint point);

/// Converts a box of the target's pixels to physical screen pixels, rounded outwards.
ScreenBox toScreen(const WindowScale& scale, const ScreenBox& box);

}  // namespace nhw32
