#pragma once

#include <functional>

/// How large texts are: decided here, measured and drawn elsewhere. Pure functions. A height is
/// that of a font's letters in pixels, without the line's leading.
namespace forms {

/// Returns how much larger than usual the user has made texts, at least 1: `messageHeight` is the
/// height of the system's font for messages at `dpi`, usually 9 points.
double textScale(int messageHeight, int dpi);

/// Returns the greatest height from `least` to `wanted` for which `fits` returns true, or `least`
/// if there is none. Below a height that fits every other one is expected to fit.
int largestFitting(int wanted, int least, const std::function<bool(int)>& fits);

/// A width and a height in pixels.
struct PixelSize {
  int width = 0;
  int height = 0;
};

/// Returns the DPI in which a layout, made for texts of the usual size, is to be laid out on a
/// monitor of `dpi` so that it grows with its texts: `scale` times `dpi`, but not so much that the
/// window, whose size is `window` at `dpi`, no longer fits into `work`; at least `dpi`.
int layoutDpi(int dpi, double scale, PixelSize window, PixelSize work);

}  // namespace forms
