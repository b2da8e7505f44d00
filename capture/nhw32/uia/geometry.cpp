#include "capture/nhw32/uia/geometry.h"

#include <algorithm>
#include <cmath>
#include <utility>

// Providers are programs of many makers: rectangles may be NaN, negative or of another screen, and
// a "character" may be a word or a line. What does not make sense is no answer, never a wrong word.
namespace nhw32 {
namespace {

constexpr std::size_t kNumbers = 4;  // of a rectangle
/// Beyond every arrangement of monitors, and convertible to int.
constexpr double kMaxCoordinate = 1e6;

struct Rectangle {
  double left;
  double top;
  double width;
  double height;
};

/// Also false for NaN, with which every comparison is false.
bool onScreen(const Rectangle& r) {
  return std::abs(r.left) <= kMaxCoordinate && std::abs(r.top) <= kMaxCoordinate && r.width >= 0 &&
         r.width <= kMaxCoordinate && r.height >= 0 && r.height <= kMaxCoordinate;
}

/// Tests the centre of the pixel: rectangles of scaled text do not begin at whole pixels.
bool holds(const Rectangle& r, ScreenPoint point) {
  const double x = point.x + 0.5;
  const double y = point.y + 0.5;
  return x >= r.left && x < r.left + r.width && y >= r.top && y < r.top + r.height;
}

ScreenBox inPixels(const Rectangle& r) {
  return {static_cast<int>(std::floor(r.left)), static_cast<int>(std::floor(r.top)),
          static_cast<int>(std::ceil(r.left + r.width)),
          static_cast<int>(std::ceil(r.top + r.height))};
}

bool isBlankUnit(char16_t unit) {
  constexpr char16_t kNoBreakSpace = u'\u00A0';
  constexpr char16_t kIdeographicSpace = u'\u3000';
  return unit <= u' ' || unit == kNoBreakSpace || unit == kIdeographicSpace;
}

}  // namespace

std::optional<ScreenBox> boxUnder(std::span<const double> rectangles, ScreenPoint point) {
  if (rectangles.size() % kNumbers != 0) return std::nullopt;
  // One rectangle a line of text. An invalid one makes those after it doubtful.
  for (; !rectangles.empty(); rectangles = rectangles.subspan(kNumbers)) {
    const Rectangle next{rectangles[0], rectangles[1], rectangles[2], rectangles[3]};
    if (!onScreen(next)) return std::nullopt;
    if (holds(next, point)) return inPixels(next);
  }
  return std::nullopt;
}

bool isOneCharacter(std::u16string_view text) { return text.size() == 1 || text.size() == 2; }

std::size_t labelLength(std::u16string_view unit) {
  const std::size_t tab = unit.rfind(u'\t');
  const bool isLabel = tab != std::u16string_view::npos && tab > 0 &&
                       isOneCharacter(unit.substr(tab + 1)) && !isBlank(unit.substr(tab + 1));
  return isLabel ? tab + 1 : 0;
}

bool isBlank(std::u16string_view text) { return std::ranges::all_of(text, isBlankUnit); }

bool isWordOrItem(std::u16string_view text, std::u16string_view word) {
  if (!text.ends_with(word)) return false;
  const auto before = text.substr(0, text.size() - word.size());
  return before.empty() || isBlankUnit(before.back());
}

// The point may be anywhere in the unit, so that a reading of a part of it may not be the one
// there. A full stop at its end is a part of the word or the sentence's.
std::optional<text::Readings> onlyWord(std::u16string_view text) {
  while (!text.empty() && isBlankUnit(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlankUnit(text.back())) text.remove_suffix(1);
  text::Readings readings = text::readingsAt(text, 0);
  auto& [candidates, otherwise] = readings;
  const auto isWhole = [&](const text::Reading& reading) {
    return reading.begin == 0 && reading.end == text.size();
  };
  const auto isPart = [&](const text::Reading& reading) {
    return !isWhole(reading) && (reading.begin != 0 || text.substr(reading.end) != u".");
  };
  if (std::none_of(candidates.begin(), candidates.end(), isWhole) &&
      !(otherwise && isWhole(*otherwise))) {
    return std::nullopt;
  }
  std::erase_if(candidates, isPart);
  if (otherwise && isPart(*otherwise)) otherwise.reset();
  return readings;
}

}  // namespace nhw32
