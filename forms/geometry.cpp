#include "forms/geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

// Products are taken in 64 bits; adding half the denominator before the division rounds halves away
// from zero.
namespace forms {
namespace {

int scale(int value, int numerator, int denominator) {
  const std::int64_t product = std::int64_t{value} * numerator;
  const std::int64_t half = denominator / 2;
  return static_cast<int>((product >= 0 ? product + half : product - half) / denominator);
}

}  // namespace

int toPixels(int twips, int dpi) { return scale(twips, dpi, kTwipsPerInch); }

int toTwips(int pixels, int dpi) { return scale(pixels, kTwipsPerInch, dpi); }

int clientPixels(int outer, int frame, int dpi) {
  return toPixels(std::max(outer - frame, 0), dpi);
}

int outerTwips(int pixels, int frame, int dpi, int set, int before) {
  for (const int known : {set, before}) {
    if (clientPixels(known, frame, dpi) == pixels) return known;
  }
  return std::min(toTwips(pixels, dpi) + frame, kMaxSize);
}

int scaledOuter(int outer, int frameFrom, int frameTo, int from, int to) {
  const int client = std::max(outer - frameFrom, 0);
  return static_cast<int>(std::lround(static_cast<double>(client) * to / from)) + frameTo;
}

std::int16_t toInt16(std::int64_t value) {
  if (value < std::numeric_limits<std::int16_t>::min() ||
      value > std::numeric_limits<std::int16_t>::max()) {
    throw std::overflow_error("Overflow");
  }
  return static_cast<std::int16_t>(value);
}

std::int32_t subtract(std::int32_t a, std::int32_t b) {
  std::int32_t difference = 0;
  if (__builtin_sub_overflow(a, b, &difference)) throw std::overflow_error("Overflow");
  return difference;
}

}  // namespace forms
