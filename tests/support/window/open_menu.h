#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace support {

/// One line of a popup menu as the system shows it.
struct MenuLine {
  std::u16string caption;  ///< "-" for a separator
  bool enabled = true;
  bool checked = false;
  bool operator==(const MenuLine&) const = default;
};

/// The popup menu that this process has dropped down, or null.
HWND openMenu();

/// Its lines, from top to bottom.
std::vector<MenuLine> linesOf(HWND menuWindow);

/// Number of the highlighted line, from 0; -1 for none.
int highlighted(HWND menuWindow);

}  // namespace support
