#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Text, size and place of the meaning popup.
namespace capture {

/// What the popup shows, and the lengths of its two parts in code units: the headword with its line
/// end, and the meanings behind it.
struct PopupText {
  std::u16string body;
  std::int16_t headLength = 0;
  std::int16_t meaningLength = 0;
};

/// Headword on the first line, all meanings on the second; without any, that nothing was found.
/// Throws std::overflow_error where a length does not fit in 16 bits.
PopupText popupText(std::u16string_view word, const std::vector<std::u16string>& meanings);

/// Twips.
struct PopupSize {
  std::int16_t width = 0;
  std::int16_t height = 0;
  bool operator==(const PopupSize&) const = default;
};

/// Size for a text of these lengths, in 16-bit arithmetic. Throws std::overflow_error.
PopupSize popupSize(std::int16_t headLength, std::int16_t meaningLength);

/// Screen pixels.
struct PopupPlace {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const PopupPlace&) const = default;
};

/// The monitor under the pointer: where it begins and ends, in screen pixels, and its resolution.
struct PopupMonitor {
  int left = 0;
  int right = 0;
  int dpi = 96;
};

/// Below and right of the pointer at `x`, `y`; one that would leave the monitor on the right ends
/// 30 pixels before its edge. The bottom has no such limit. Throws std::overflow_error where the
/// moved edge does not fit in 16 bits.
PopupPlace popupPlace(int x, int y, PopupSize size, PopupMonitor monitor);

/// Whether the pointer has left the place where the popup opened: 6 pixels along either axis.
bool hasMovedAway(int startX, int startY, int x, int y);

}  // namespace capture
