#include "forms/appearance/contrast.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace forms {
namespace {

/// The least contrast that WCAG 2.1 asks for in large texts and in parts of a control (1.4.3 and
/// 1.4.11). Not the 4.5 of small texts: pure red has only 4.0 on white.
constexpr double kReadable = 3;

/// Less than that of a button's face on a white window (1.09 to 1.14 in the usual themes).
constexpr double kSeen = 1.05;

/// One component of sRGB, 0 to 255, as linear light, 0 to 1; WCAG's own numbers.
double linear(std::uint32_t component) {
  const double value = static_cast<double>(component & 0xFF) / 255;
  return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double relativeLuminance(std::uint32_t color) {
  return 0.2126 * linear(color) + 0.7152 * linear(color >> 8) + 0.0722 * linear(color >> 16);
}

}  // namespace

double contrast(std::uint32_t one, std::uint32_t other) {
  const auto [darker, lighter] = std::minmax({relativeLuminance(one), relativeLuminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

bool isSeenOn(std::uint32_t color, std::uint32_t background) {
  return contrast(color, background) >= kSeen;
}

std::uint32_t backgroundFor(std::span<const std::uint32_t> texts, std::uint32_t theme,
                            bool highContrast) {
  const bool givesWay = std::ranges::any_of(texts, [=](std::uint32_t text) {
    return contrast(text, theme) < kReadable && contrast(text, kWhite) >= kReadable;
  });
  return highContrast || givesWay ? kWhite : theme;
}

}  // namespace forms
