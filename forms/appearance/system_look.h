#pragma once

#include <cstdint>
#include <span>

#include "win32/win32.h"

/// What the user has set for the look of all programs, as it is now: ask again after
/// WM_SETTINGCHANGE, WM_SYSCOLORCHANGE and WM_THEMECHANGED.
namespace forms {

/// Returns sizes and fonts of windows for a monitor of `dpi`; zeros if the system has none.
NONCLIENTMETRICSW windowMetrics(int dpi);

/// Returns how much larger than usual the user has made texts, at least 1, by the font for messages
/// in `metrics` for a monitor of `dpi`.
double textScale(const NONCLIENTMETRICSW& metrics, int dpi);

/// Returns whether one of the high-contrast themes is on (SPI_GETHIGHCONTRAST).
bool isHighContrast();

/// Returns the background for texts in the fixed colours `texts`, where it would be the system
/// colour `index` (COLOR_WINDOW ...) otherwise; see backgroundFor.
COLORREF systemBackgroundFor(std::span<const std::uint32_t> texts, int index);

}  // namespace forms
