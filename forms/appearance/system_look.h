#pragma once

#include <cstdint>
#include <initializer_list>

#include "win32/win32.h"

/// What the user has set for the look of all programs, as it is now: ask again after
/// WM_SETTINGCHANGE, WM_SYSCOLORCHANGE and WM_THEMECHANGED.
namespace forms {

/// Returns whether one of the high-contrast themes is on (SPI_GETHIGHCONTRAST).
bool isHighContrast();

/// Returns the background for texts in the fixed colours `texts`, where it would be the system
/// colour `index` (COLOR_WINDOW ...) otherwise; see backgroundFor.
COLORREF systemBackgroundFor(std::initializer_list<std::uint32_t> texts, int index);

}  // namespace forms
