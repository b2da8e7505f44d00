#include "capture/nhw32/controls/coordinates.h"

#include <cstdint>

// Windows stretches a window of a less DPI aware process linearly, so that the window's rectangle
// in both kinds of pixels defines the mapping. All of it is integer arithmetic rounded towards
// minus infinity, since coordinates left of and above the primary monitor are negative.
namespace nhw32 {
namespace {

/// The same extent in two kinds of pixels.
struct Spans {
  int from;
  int fromLength;
  int to;
  int toLength;
  [[nodiscard]] bool usable() const { return fromLength > 0 && toLength > 0; }
};

/// `divisor` is positive. The operator rounds towards zero.
std::int64_t floorDivided(std::int64_t value, std::int64_t divisor) {
  return value / divisor - (value % divisor < 0 ? 1 : 0);
}

/// Maps the pixel's centre, computed in half-pixel units.
int centreMapped(const Spans& spans, int value) {
  if (!spans.usable()) return value;
  const std::int64_t halves = 2 * std::int64_t{value - spans.from} + 1;
  return spans.to + static_cast<int>(
                        floorDivided(halves * spans.toLength, 2 * std::int64_t{spans.fromLength}));
}

/// Left and top edges are rounded down, right and bottom edges up: a box grows, so that it covers
/// every pixel that shows a part of it.
int edgeMappedDown(const Spans& spans, int value) {
  if (!spans.usable()) return value;
  return spans.to + static_cast<int>(floorDivided(std::int64_t{value - spans.from} * spans.toLength,
                                                  spans.fromLength));
}

int edgeMappedUp(const Spans& spans, int value) {
  if (!spans.usable()) return value;
  return spans.to - static_cast<int>(floorDivided(
                        -std::int64_t{value - spans.from} * spans.toLength, spans.fromLength));
}

template <class From, class To>
Spans across(const From& from, const To& to) {
  return {from.left, from.right - from.left, to.left, to.right - to.left};
}

template <class From, class To>
Spans down(const From& from, const To& to) {
  return {from.top, from.bottom - from.top, to.top, to.bottom - to.top};
}

}  // namespace

TargetPoint toTarget(const WindowScale& scale, ScreenPoint point) {
  return {centreMapped(across(scale.onScreen, scale.forTarget), point.x),
          centreMapped(down(scale.onScreen, scale.forTarget), point.y)};
}

ScreenBox toScreen(const WindowScale& scale, const TargetBox& box) {
  const Spans horizontal = across(scale.forTarget, scale.onScreen);
  const Spans vertical = down(scale.forTarget, scale.onScreen);
  return {edgeMappedDown(horizontal, box.left), edgeMappedDown(vertical, box.top),
          edgeMappedUp(horizontal, box.right), edgeMappedUp(vertical, box.bottom)};
}

}  // namespace nhw32
