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

/// Returns the number of pixel rows, from a character's upper edge down, in which the service finds
/// a word. Fails the test if it finds one again further down.
int wordRows(HWND control, std::size_t position);

/// Returns the number of pixel columns, from a character's left edge on, in which the service finds
/// a word. Fails the test if it finds one again further right.
int wordColumns(HWND control, std::size_t position);

/// Returns the distance in pixels from one line of a control's text to the next.
int lineDistance(HWND control, std::size_t inLine, std::size_t inNextLine);

}  // namespace support
