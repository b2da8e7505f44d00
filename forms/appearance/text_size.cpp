#include "forms/appearance/text_size.h"

#include <algorithm>
#include <cmath>

namespace forms {
namespace {

constexpr double kUsualPoints = 9;
constexpr double kPointsPerInch = 72;

}  // namespace

double textScale(int messageHeight, int dpi) {
  return std::max(messageHeight * kPointsPerInch / (kUsualPoints * dpi), 1.0);
}

// The wanted height is tried first: it nearly always fits. Then bisection, where `low` is taken to
// fit and `high` does not.
int largestFitting(int wanted, int least, const std::function<bool(int)>& fits) {
  if (wanted <= least || fits(wanted)) return wanted;
  int low = least;
  int high = wanted;
  while (high - low > 1) {
    const int middle = low + ((high - low) / 2);
    (fits(middle) ? low : high) = middle;
  }
  return low;
}

int layoutDpi(int dpi, double scale, PixelSize window, PixelSize work) {
  if (window.width <= 0 || window.height <= 0) return dpi;
  const double room = std::min(static_cast<double>(work.width) / window.width,
                               static_cast<double>(work.height) / window.height);
  return std::max(static_cast<int>(std::floor(dpi * std::min(scale, room))), dpi);
}

}  // namespace forms
