#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Text, size and place of the meaning popup. Pure functions. Deliberate: lengths and sizes are
/// 16-bit; what does not fit is an error, which ends the popup before it is shown.
namespace capture {

/// What the popup shows, and the lengths of its two parts in UTF-16 code units: the headword with
/// its line end, and the meanings after it.
struct PopupText {
  std::u16string body;
  std::int16_t headLength = 0;
  std::int16_t meaningLength = 0;
};

/// Returns the headword on the first line and all meanings, separated by full-width semicolons, on
/// the second; without meanings, that nothing was found. Throws std::overflow_error if a length
/// does not fit in 16 bits.
PopupText popupText(std::u16string_view word, const std::vector<std::u16string>& meanings);

/// A size in twips, of any DPI: it is computed from the text alone.
struct PopupSize {
  std::int16_t width = 0;
  std::int16_t height = 0;
  bool operator==(const PopupSize&) const = default;
};

/// Returns the size for a text whose parts have these lengths. Throws std::overflow_error if a
/// width or height does not fit in 16 bits (for instance for a headword line of more than 326 code
/// units).
PopupSize popupSize(std::int16_t headLength, std::int16_t meaningLength);

/// A rectangle in screen pixels.
struct PopupPlace {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const PopupPlace&) const = default;
};

/// The monitor under the pointer: its left and right edge in screen pixels, and its DPI.
struct PopupMonitor {
  int left = 0;
  int right = 0;
  int dpi = 96;
};

/// Returns the place below and right of the pointer at `x`, `y` (screen pixels). A popup that would
/// leave the monitor on the right ends 30 pixels before its edge. Deliberate: the bottom has no
/// such limit, nor has the left edge after the move. Throws std::overflow_error if the moved edge,
/// counted from the monitor's, does not fit in 16 bits.
PopupPlace popupPlace(int x, int y, PopupSize size, PopupMonitor monitor);

/// Returns whether the pointer (screen pixels) has left the point where the popup opened: by 6
/// pixels or more along either axis. Deliberate: onto the popup as well.
bool hasMovedAway(int startX, int startY, int x, int y);

}  // namespace capture
