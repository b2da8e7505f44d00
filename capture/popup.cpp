#include "capture/popup.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "forms/geometry.h"

namespace capture {
namespace {

constexpr std::u16string_view kNotFound = u"<没找到>";
constexpr std::u16string_view kSeparator = u"；";

// The size is an estimate from the number of characters, made for 宋体 of 9 points: some 200 twips
// a Chinese character, some 100 a Latin one. A text that needs more room scrolls. In twips:
constexpr int kLineLength = 30;  // code units of a full line of meanings
constexpr int kFullWidth = 6000;
constexpr int kChineseWidth = 200;
constexpr int kLatinWidth = 100;
constexpr int kLineHeight = 300;
constexpr int kMinWidth = 2500;
constexpr int kMinHeight = 900;

// In pixels:
constexpr int kPointerDistance = 10;
constexpr int kEdgeDistance = 30;
constexpr int kStillWithin = 6;

}  // namespace

PopupText popupText(std::u16string_view word, const std::vector<std::u16string>& meanings) {
  PopupText text;
  // Deliberate: the word as it was passed, with its quotes doubled.
  text.body.append(word).append(u"\r\n");
  text.headLength = forms::toInt16(static_cast<std::int64_t>(text.body.size()));
  if (meanings.empty()) text.body.append(kNotFound);
  for (std::size_t i = 0; i < meanings.size(); ++i) {
    if (i > 0) text.body.append(kSeparator);
    text.body.append(meanings[i]);
  }
  text.meaningLength =
      forms::toInt16(static_cast<std::int64_t>(text.body.size()) - text.headLength);
  return text;
}

// More than a line of meanings takes the full width. With a single line the width is that of the
// headword if 1.5 times its length is at least the meanings' length, otherwise that of the
// meanings.
PopupSize popupSize(std::int16_t headLength, std::int16_t meaningLength) {
  const int lines = meaningLength / kLineLength + 1;
  int width = 0;
  if (lines > 1) {
    width = kFullWidth;
  } else if (headLength * 1.5 >= meaningLength) {
    width = headLength * kLatinWidth + kLatinWidth;
  } else {
    width = meaningLength * kChineseWidth;
  }
  const std::int16_t checkedWidth = forms::toInt16(width);
  // One more for the headword's line.
  const std::int16_t height = forms::toInt16(std::int64_t{lines + 1} * kLineHeight);
  return {std::max<std::int16_t>(checkedWidth, kMinWidth),
          std::max<std::int16_t>(height, kMinHeight)};
}

PopupPlace popupPlace(int x, int y, PopupSize size, PopupMonitor monitor) {
  const double twipsPerPixel = static_cast<double>(forms::kTwipsPerInch) / monitor.dpi;
  const double width = size.width / twipsPerPixel;
  const int screenWidth = monitor.right - monitor.left;
  // Counted from the monitor's left edge, as if it were the only one.
  int left = x - monitor.left + kPointerDistance;
  if (screenWidth < width + left) {
    left = forms::toInt16(std::lround(screenWidth - width - kEdgeDistance));
  }
  return {monitor.left + left, y + kPointerDistance, forms::toPixels(size.width, monitor.dpi),
          forms::toPixels(size.height, monitor.dpi)};
}

bool hasMovedAway(int startX, int startY, int x, int y) {
  return std::abs(y - startY) >= kStillWithin || std::abs(x - startX) >= kStillWithin;
}

}  // namespace capture
