#include "tests/support/process/quick_lookup_sizes.h"

#include <cstdlib>
#include <ostream>
#include <string>

#include "forms/geometry.h"

namespace support {

void PrintTo(const Sizes& sizes, std::ostream* out) {
  *out << sizes.width << " x " << sizes.height << ", list " << sizes.list;
}

Sizes sizesOf(const QuickLookup& window) {
  const int dpi = static_cast<int>(GetDpiForWindow(window.window()));
  const SIZE client = sizeOf(clientRectOf(window.window()));
  return {forms::toTwips(client.cx, dpi) + forms::kFrameWidth,
          forms::toTwips(client.cy, dpi) + forms::kFrameHeight,
          forms::toTwips(sizeOf(rectOf(window.list())).cx, dpi)};
}

bool alike(const Sizes& one, const Sizes& other) {
  return std::abs(one.width - other.width) < 15 && std::abs(one.height - other.height) < 15 &&
         std::abs(one.list - other.list) < 15;
}

void dragCorner(const QuickLookup& window, SIZE pixels, const Sizes& sizes) {
  const auto place = [](LONG x, LONG y) { return std::to_string(x) + " " + std::to_string(y); };
  // To where there is room for any size.
  const SIZE size = sizeOf(rectOf(window.window()));
  placeWindow(window.window(), {100, 150, 100 + size.cx, 150 + size.cy});
  const auto drag = [&] {
    const RECT client = clientRectOf(window.window());
    runBelow("xdotool mousemove " + place(client.right - 2, client.bottom + 2) +
             " mousedown 1 sleep 0.1 mousemove_relative -- 5 5 sleep 0.1 mousemove " +
             place(client.left + pixels.cx - 2, client.top + pixels.cy + 2) +
             " sleep 0.2 mouseup 1");
  };
  actUntil("the new size", drag, [&] { return alike(sizesOf(window), sizes); });
}

}  // namespace support
