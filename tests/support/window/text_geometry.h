#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

namespace support {

/// A pixel of a character's cell.
struct TextPoint {
  std::size_t position = 0;  ///< of the character, as the control counts
  POINT point{};             ///< on the screen
};

/// `count` random places of the text that an edit or rich edit control of any program shows, each
/// in another character as long as there are as many. The last characters of lines are left out.
std::vector<TextPoint> visibleTextPoints(HWND control, std::size_t count);

/// How many pixels down from the upper edge of a character the service tells a word, all from there
/// on; where it does so again further down, a failure.
int wordRows(HWND control, std::size_t position);

/// How many pixels one line of a control's text stands above the next.
int lineDistance(HWND control, std::size_t inLine, std::size_t inNextLine);

}  // namespace support
