#pragma once

#include <iosfwd>

#include "tests/support/process/find.h"
#include "tests/support/process/input.h"
#include "tests/support/process/quick_lookup.h"

/// The quick lookup window's sizes, and a user's hands on its frame and its splitter.
namespace support {

/// Sizes in twips, as the settings keep them.
struct Sizes {
  int width = 0;
  int height = 0;
  int list = 0;
  bool operator==(const Sizes&) const = default;
};
void PrintTo(const Sizes& sizes, std::ostream* out);

/// Those that the window has now, at the resolution of its monitor.
Sizes sizesOf(const QuickLookup& window);

/// Whether two sizes are the same but for the rounding of twips to pixels.
bool alike(const Sizes& one, const Sizes& other);

/// Moves the window to the left, and drags its lower right corner by the window manager's frame,
/// below and beside the client area, to where that would have `pixels`, and waits until the window
/// has these sizes.
void dragCorner(const QuickLookup& window, SIZE pixels, const Sizes& sizes);

/// Drags the splitter to a place on the screen's width until `look` likes the window's sizes.
template <class Look>
void dragSplitter(const QuickLookup& window, LONG target, Look look) {
  const auto drag = [&] {
    const POINT handle = centreOf(window.splitter());
    input::drag(handle, {target, handle.y});
  };
  actUntil("the list to be as wide", drag, [&] { return look(sizesOf(window)); });
}

}  // namespace support
