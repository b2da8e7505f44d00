#pragma once

#include <cstdint>

/// Twips, pixels and the checked 16 and 32-bit arithmetic of the layouts. Pure functions.
namespace forms {

/// Twips in an inch: 15 to a pixel at 96 dpi.
inline constexpr int kTwipsPerInch = 1440;

/// Size in twips of a caption window's frame for which the layouts were made: 8 x 27 pixels at 96
/// dpi. A form's Width and Height are its client size plus these, whatever the real frame takes (16
/// x 39 pixels on Windows 10), so that no layout is clipped.
inline constexpr int kFrameWidth = 120;
inline constexpr int kFrameHeight = 405;

/// Largest width and height of a form, in twips: the layouts calculate in 16 bits.
inline constexpr int kMaxSize = 32767;

/// Width and height of a small picture, on a button or before a node: 16 pixels at 96 dpi.
inline constexpr int kPictureTwips = 240;

/// Place and size of a widget in its form's client area, in twips.
struct WidgetBox {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const WidgetBox&) const = default;
};

/// Converts twips to the nearest pixel at `dpi`, halves away from zero.
int toPixels(int twips, int dpi);

/// Converts pixels to the nearest twip at `dpi`, halves away from zero. Up to 1440 dpi
/// toPixels(toTwips(x)) is x.
int toTwips(int pixels, int dpi);

/// Returns the client size in pixels at `dpi` that an outer size of `outer` twips has, less the
/// `frame` twips that the layouts take the frame for; at least 0.
int clientPixels(int outer, int frame, int dpi);

/// Returns the outer size in twips of a form whose client area has `pixels` at `dpi`, at most
/// kMaxSize. `set` and `before` are the outer sizes that were last set and last known: the first of
/// them that has just these pixels is returned unchanged, so that maximising and restoring, which
/// go through pixels, change no size.
int outerTwips(int pixels, int frame, int dpi, int set, int before);

/// Returns the outer size in pixels at the DPI `to` that belongs to `outer` pixels at `from`: the
/// client area is scaled; the frame takes `frameFrom` pixels at the one and `frameTo` at the other.
int scaledOuter(int outer, int frameFrom, int frameTo, int from, int to);

/// Returns `value` as a 16-bit signed number. Throws std::overflow_error with the message
/// "Overflow" outside -32768..32767.
std::int16_t toInt16(std::int64_t value);

/// Returns `a` - `b` in 32 bits. Throws std::overflow_error with the message "Overflow".
std::int32_t subtract(std::int32_t a, std::int32_t b);

}  // namespace forms
