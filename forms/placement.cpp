#include "forms/placement.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace forms {
namespace {

PixelBox movedTo(const PixelBox& box, int left, int top) {
  return {left, top, left + box.width(), top + box.height()};
}

std::int64_t distance(const PixelBox& one, const PixelBox& other) {
  const std::int64_t x = one.left - other.left;
  const std::int64_t y = one.top - other.top;
  return (x * x) + (y * y);
}

}  // namespace

bool meet(const PixelBox& one, const PixelBox& other) {
  return one.left < other.right && other.left < one.right && one.top < other.bottom &&
         other.top < one.bottom;
}

PixelBox centred(const PixelBox& window, const PixelBox& over, const PixelBox& work) {
  const int width = std::min(window.width(), work.width());
  const int height = std::min(window.height(), work.height());
  const int left = std::clamp((over.left + over.right - width) / 2, work.left, work.right - width);
  const int top = std::clamp((over.top + over.bottom - height) / 2, work.top, work.bottom - height);
  return {left, top, left + width, top + height};
}

// In each direction the nearest free place either keeps the wanted coordinate or touches an edge of
// an obstacle. Only the combinations of these coordinates are tried: O(n^3) for n obstacles, of
// which there are two or three.
std::optional<PixelBox> placeBeside(const PixelBox& wanted, const PixelBox& work,
                                    std::span<const PixelBox> obstacles) {
  std::vector<int> lefts{wanted.left};
  std::vector<int> tops{wanted.top};
  for (const PixelBox& obstacle : obstacles) {
    lefts.insert(lefts.end(), {obstacle.left - wanted.width(), obstacle.right});
    tops.insert(tops.end(), {obstacle.top - wanted.height(), obstacle.bottom});
  }
  std::optional<PixelBox> best;
  for (const int left : lefts) {
    for (const int top : tops) {
      const PixelBox place = movedTo(wanted, left, top);
      const bool inside = place.left >= work.left && place.top >= work.top &&
                          place.right <= work.right && place.bottom <= work.bottom;
      if (!inside || std::ranges::any_of(obstacles, [&](const PixelBox& obstacle) {
            return meet(place, obstacle);
          })) {
        continue;
      }
      if (!best || distance(place, wanted) < distance(*best, wanted)) best = place;
    }
  }
  return best;
}

PixelBox placeAtBar(const PixelBox& window, const PixelBox& bar, const PixelBox& work) {
  const bool roomBelow = bar.bottom + window.height() <= work.bottom;
  const bool roomAbove = bar.top - window.height() >= work.top;
  const int top = roomBelow || !roomAbove ? bar.bottom : bar.top - window.height();
  return movedTo(window, std::max(std::min(bar.left, work.right - window.width()), work.left),
                 std::max(std::min(top, work.bottom - window.height()), work.top));
}

PixelBox withTitleBarOn(const PixelBox& window, const PixelBox& work, int titleHeight) {
  const int shown = std::min(3 * titleHeight, window.width());
  const int left =
      std::max(std::min(window.left, work.right - shown), work.left + shown - window.width());
  const int top = std::max(std::min(window.top, work.bottom - titleHeight), work.top);
  return movedTo(window, left, top);
}

PixelBox resizedAtDraggedSide(const PixelBox& dragged, int width, int height, bool byLeft,
                              bool byTop) {
  PixelBox box = dragged;
  (byLeft ? box.left : box.right) = byLeft ? box.right - width : box.left + width;
  (byTop ? box.top : box.bottom) = byTop ? box.bottom - height : box.top + height;
  return box;
}

int distanceOutside(int x, int left, int right) {
  if (x < left) return x - left;
  return std::max(x - (right - 1), 0);
}

Raise raised(std::span<const std::optional<Rank>> stack, std::optional<std::size_t> self,
             Rank rank) {
  const auto isHigher = [&](const std::optional<Rank>& other) { return other && *other > rank; };
  std::size_t higher = 0;  // number of windows down to the last one of a higher rank
  for (std::size_t i = 0; i < stack.size(); ++i) {
    if (isHigher(stack[i])) higher = i + 1;
  }
  if (!self) return {Raise::Where::kTop};
  if (higher <= *self && std::ranges::all_of(stack.first(*self), isHigher)) {
    return {Raise::Where::kStays};
  }
  const bool clear =
      std::ranges::all_of(stack.first(higher), [](const auto& one) { return one.has_value(); });
  if (higher == 0 || !clear) return {Raise::Where::kTop};
  return {Raise::Where::kBehind, higher - 1};
}

}  // namespace forms
