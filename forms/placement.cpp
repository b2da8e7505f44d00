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

// The nearest free place touches in each direction either nothing, and keeps the wanted coordinate,
// or an obstacle's edge: only the combinations of these coordinates have to be tried.
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

std::optional<std::size_t> lowestAbove(std::span<const Rank> ranks, Rank rank) {
  for (std::size_t i = ranks.size(); i > 0; --i) {
    if (ranks[i - 1] > rank) return i - 1;
  }
  return std::nullopt;
}

}  // namespace forms
