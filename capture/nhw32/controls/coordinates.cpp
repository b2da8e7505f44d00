#include "capture/nhw32/controls/coordinates.h"

#include <cstdint>

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

Spans across(const ScreenBox& from, const ScreenBox& to) {
  return {from.left, from.right - from.left, to.left, to.right - to.left};
}

Spans down(const ScreenBox& from, const ScreenBox& to) {
  return {from.top, from.bottom - from.top, to.top, to.bottom - to.top};
}

}  // namespace

ScreenPoint toTarget(const WindowScale& scale, ScreenPoint point) {
  return {centreMapped(across(scale.onScreen, scale.forTarget), point.x),
          centreMapped(down(scale.onScreen, scale.forTarget), point.y)};
}

ScreenBox toScreen(const WindowScale& scale, const ScreenBox& box) {
  const Spans horizontal = across(scale.forTarget, scale.onScreen);
  const Spans vertical = down(scale.forTarget, scale.onScreen);
  return {edgeMappedDown(horizontal, box.left), edgeMappedDown(vertical, box.top),
          edgeMappedUp(horizontal, box.right), edgeMappedUp(vertical, box.bottom)};
}

}  // namespace nhw32
