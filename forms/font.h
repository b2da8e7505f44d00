#pragma once

#include <string>

#include "win32/handles.h"

namespace forms {

/// A face and a size, whatever the resolution. An empty face stands for the system's own font for
/// messages, at its own size.
struct Font {
  std::u16string face;
  double points = 9;
  bool fixedPitch = false;  ///< where the face is missing, one of fixed pitch takes its place
};

/// Creates the system's font object for `font` at `dpi`. Throws std::runtime_error if Windows
/// cannot create it.
win32::OwnedFont makeFont(const Font& font, int dpi);

}  // namespace forms
