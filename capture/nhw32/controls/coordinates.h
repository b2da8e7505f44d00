#pragma once

#include "capture/nhw32/reader.h"

/// The pixels that reading a control involves. Each kind has types of its own, so that mixing them
/// does not compile:
///
///     ScreenPoint   physical pixels of the virtual screen, as our own threads count them
///     TargetPoint   pixels of the virtual screen, as the target's process counts them
///     ClientPoint   pixels of the target's client area, as its process counts them
///
/// The first two differ if the target's process is less DPI aware than ours, since Windows then
/// scales its windows: toTarget and toScreen convert. The last two differ by the place of the
/// client area only: toClient and fromClient (target_window.h) convert.
namespace nhw32 {

struct TargetPoint {
  int x = 0;
  int y = 0;
  bool operator==(const TargetPoint&) const = default;
};

/// Right and bottom are exclusive, as in all boxes.
struct TargetBox {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  bool operator==(const TargetBox&) const = default;
};

struct ClientPoint {
  int x = 0;
  int y = 0;
  bool operator==(const ClientPoint&) const = default;
};

struct ClientBox {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  bool operator==(const ClientBox&) const = default;
};

/// The same window's outer rectangle in both kinds of screen pixels; its corners correspond.
struct WindowScale {
  ScreenBox onScreen;
  TargetBox forTarget;
};

/// Returns the target's pixel that is shown at the centre of a screen pixel. In a direction in
/// which either rectangle is empty, coordinates are returned as they are.
TargetPoint toTarget(const WindowScale& scale, ScreenPoint point);

/// Returns the screen pixels that the target's pixels of `box` are shown on, wholly or in part.
ScreenBox toScreen(const WindowScale& scale, const TargetBox& box);

}  // namespace nhw32
