#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

namespace wintest {

/// A pixel of a character's cell.
struct TextPlace {
  std::size_t position = 0;  ///< of the character, as the control counts
  POINT point{};             ///< on the screen
};

/// `count` random places of the text that an edit or rich edit control of any program shows, each
/// in another character as long as there are as many. The last characters of lines are left out.
std::vector<TextPlace> placesInSight(HWND control, std::size_t count);

}  // namespace wintest
