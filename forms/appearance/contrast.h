#pragma once

#include <cstdint>
#include <span>

/// Which colours can be told apart. Colours are COLORREFs (0x00BBGGRR). Pure functions.
namespace forms {

inline constexpr std::uint32_t kWhite = 0x00FFFFFF;

/// Returns the contrast ratio of two colours by WCAG 2: the relative luminance of the lighter plus
/// 0.05, divided by that of the darker plus 0.05. 1 for equal colours, 21 for black and white.
double contrast(std::uint32_t one, std::uint32_t other);

/// Returns whether an area of `color` is seen on `background`.
bool isSeenOn(std::uint32_t color, std::uint32_t background);

/// Returns the background for texts in the fixed colours `texts`, where the theme's would be
/// `theme`: white if the user has switched high contrast on, or if white makes a text readable that
/// is not so on `theme`; otherwise `theme`.
std::uint32_t backgroundFor(std::span<const std::uint32_t> texts, std::uint32_t theme,
                            bool highContrast);

}  // namespace forms
