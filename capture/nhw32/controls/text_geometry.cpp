#include "capture/nhw32/controls/text_geometry.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <string_view>
#include <utility>

// EM_CHARFROMPOS and its like return the position nearest to a point, wherever the point is: also
// right of a line's end and below the last line. So the point is checked against the cell of the
// character, and the word's box is computed. Controls report only the top left corner of a
// character:
//
//     left    its own corner
//     right   the next character's left edge. The last character of the text has no next one: the
//             nearest position changes at its middle, so that is where the control is asked
//     top     its own corner
//     bottom  the top of the next line. On the last line: as high as the line before if all lines
//             are alike; otherwise what the formatting rectangle or the caret shows, limited by
//             the height that the width of the word's letters lets expect; otherwise that height
//
// A point on the right half of a character is nearest to the position after it; so the character
// before the returned position is tried as well.
namespace nhw32 {
namespace {

/// The DPI of the sizes in pixels below.
constexpr int kDefaultDpi = 96;

/// The factor by which estimatedHeight may be wrong. Measured in Arial, Times New Roman and Courier
/// New on the 20,000 commonest English words: 98 % are estimated at 0.9 to 1.4 times their height.
constexpr double kEstimateError = 1.5;

/// The approximate width of a letter in ems, between those in Times New Roman and in Verdana.
double usualWidthOf(char16_t letter) {
  constexpr double kNarrow = 0.33;
  constexpr double kSmall = 0.5;
  constexpr double kCapital = 0.65;
  constexpr double kWide = 0.8;
  constexpr double kHan = 1;  // a square, in all fonts
  if (letter >= u'\u3000') return kHan;
  const auto isOneOf = [letter](std::u16string_view letters) {
    return letters.find(letter) != std::u16string_view::npos;
  };
  if (isOneOf(u"fijlrtI'-\u2010\u2011\u2019")) return kNarrow;
  if (isOneOf(u"mwMW")) return kWide;
  return letter >= u'A' && letter <= u'Z' ? kCapital : kSmall;
}

/// Estimates the height in pixels of a word's line from the widths of the word and of one of its
/// letters.
double estimatedHeight(std::u16string_view word, int width, int letterWidth) {
  // Lines of common fonts are 1.13 to 1.33 ems high; letters of fixed pitch are 0.5 to 0.6 ems
  // wide, so a line is 1.13 / 0.5 = 2.3 letters high.
  constexpr double kOfEm = 1.3;
  constexpr double kOfFixedLetter = 2.3;
  double ems = 0;
  // With letters of different usual widths, equal widths are proof of a fixed pitch.
  bool differ = false;
  for (const char16_t letter : word) {
    ems += usualWidthOf(letter);
    differ = differ || usualWidthOf(letter) != usualWidthOf(word.front());
  }
  const bool fixedPitch = differ && width == letterWidth * static_cast<int>(word.size());
  return fixedPitch ? kOfFixedLetter * letterWidth : kOfEm * width / ems;
}

/// The line of a control's text that contains a character whose corner is known.
class Line {
 public:
  Line(ControlText& control, std::size_t position, ClientPoint corner)
      : control_(control),
        number_(control.lineOf(position)),
        start_(control.startOf(number_).value_or(0)),
        next_(control.startOf(number_ + 1)),
        position_(position),
        corner_(corner) {}

  /// Returns the left edge of a character, nullopt if it is on another line or past the end.
  std::optional<int> leftOf(std::size_t position) {
    if (position == position_) return corner_.x;
    if (position < start_ || (next_ && position >= *next_)) return std::nullopt;
    const auto corner = control_.cornerOf(position);
    return corner ? std::optional(corner->x) : std::nullopt;
  }

  /// Returns the right edge of a character, given its left edge. The last character of the text or
  /// of a wrapped line has no next one on its line; where the control does not tell its middle, it
  /// counts as wide as the one before.
  int rightOf(std::size_t position, int left) {
    if (const auto next = leftOf(position + 1); next && *next > left) return *next;
    const auto before = position > start_ ? leftOf(position - 1) : std::nullopt;
    const int likely = before && *before < left ? left - *before : scaled(kUsualWidth);
    return left + widthOfLast(position, left, likely).value_or(likely);
  }

  /// Returns the lower edge if the places of other lines determine it: the top of the next line, or
  /// the height of the line before if all lines are alike.
  std::optional<int> knownBottom() {
    if (const auto below = next_ ? control_.cornerOf(*next_) : std::nullopt;
        below && below->y > corner_.y) {
      return below->y;
    }
    const auto above = control_.linesAreAlike() ? heightAbove() : std::nullopt;
    return above ? std::optional(corner_.y + *above) : std::nullopt;
  }

  /// Returns the probable lower edge of a last line; `estimate` is its height by estimatedHeight.
  int likelyBottom(double estimate) {
    const int likely = std::max(scaled(kUsualHeight), whole(estimate));
    if (const auto said = control_.bottomOfLastLine(corner_.y)) {
      // A single-line box may be much higher than its line. If lines differ in height, the letters
      // within a line may as well, so the caret's height is not limited there.
      const int most =
          control_.linesAreAlike() ? corner_.y + whole(likely * kEstimateError) : *said;
      return std::max(std::min(*said, most), corner_.y + whole(estimate / kEstimateError));
    }
    if (control_.linesAreAlike()) return corner_.y + likely;
    // The line before is as high as this one, unless it is much higher than estimated: then it has
    // another font size. For narrow faces the estimate is only four fifths of the height.
    const int above = heightAbove().value_or(0);
    return corner_.y + (4 * above <= 5 * likely ? std::max(above, likely) : likely);
  }

  /// Returns the part of a range that is on this line.
  [[nodiscard]] text::Range clipped(text::Range range) const {
    return {std::max(range.begin, start_), next_ ? std::min(range.end, *next_) : range.end};
  }

 private:
  /// Letter and line of the system's default fonts at kDefaultDpi, in pixels: the last resort.
  static constexpr int kUsualWidth = 8;
  static constexpr int kUsualHeight = 16;

  /// Returns the width of the last character of the text, within a pixel; nullopt for others, and
  /// if the control names no position after it.
  std::optional<int> widthOfLast(std::size_t position, int left, int likely) {
    // Beyond this many times the likely width, a control is taken to name no later position.
    constexpr int kMaxTimes = 8;
    if (next_) return std::nullopt;
    const auto isBehindMiddle = [&](int x) {
      const auto near = control_.positionNear({left + x, corner_.y + 1});
      return near && *near > position;
    };
    int behind = likely;
    while (!isBehindMiddle(behind)) {
      if (behind >= kMaxTimes * likely) return std::nullopt;
      behind *= 2;
    }
    int before = 0;
    while (behind - before > 1) {
      const int middle = std::midpoint(before, behind);
      (isBehindMiddle(middle) ? behind : before) = middle;
    }
    // Where its middle is depends on how the control rounds.
    const int width = 2 * behind;
    return std::abs(width - likely) <= 1 ? likely : width;
  }

  static int whole(double pixels) { return static_cast<int>(std::ceil(pixels)); }

  [[nodiscard]] int scaled(int pixels) const {
    return static_cast<int>(
        std::lround(static_cast<double>(pixels) * control_.dpi() / kDefaultDpi));
  }

  /// Returns the height of the line before, nullopt on the first line.
  std::optional<int> heightAbove() {
    const auto start = number_ > 0 ? control_.startOf(number_ - 1) : std::nullopt;
    const auto above = start ? control_.cornerOf(*start) : std::nullopt;
    return above && above->y < corner_.y ? std::optional(corner_.y - above->y) : std::nullopt;
  }

  ControlText& control_;
  std::size_t number_;
  std::size_t start_;
  std::optional<std::size_t> next_;
  std::size_t position_;
  ClientPoint corner_;
};

/// Returns the word of the character at `position` if that character is under the point.
std::optional<PlacedWord> wordOf(ControlText& control, const TextPart& part, std::size_t position,
                                 ClientPoint point) {
  if (position < part.first) return std::nullopt;
  text::Readings readings = text::readingsAt(part.text, position - part.first);
  const auto corner = readings.empty() ? std::nullopt : control.cornerOf(position);
  if (!corner || point.x < corner->x || point.y < corner->y) return std::nullopt;
  Line line(control, position, *corner);
  const int letterEnd = line.rightOf(position, corner->x);
  if (point.x >= letterEnd) return std::nullopt;
  const auto known = line.knownBottom();
  if (known && point.y >= *known) return std::nullopt;
  const text::Range word = readings.range();
  const text::Range shown = line.clipped({part.first + word.begin, part.first + word.end});
  // The text may have changed since the first message.
  if (position < shown.begin || position >= shown.end) return std::nullopt;
  const int left = line.leftOf(shown.begin).value_or(corner->x);
  const int right = line.rightOf(shown.end - 1, line.leftOf(shown.end - 1).value_or(corner->x));
  const std::u16string_view letters =
      std::u16string_view(part.text).substr(shown.begin - part.first, shown.end - shown.begin);
  const int bottom =
      known ? *known
            : line.likelyBottom(estimatedHeight(letters, right - left, letterEnd - corner->x));
  if (point.y >= bottom) return std::nullopt;
  return PlacedWord{std::move(readings), {left, corner->y, right, bottom}};
}

}  // namespace

std::optional<PlacedWord> wordUnder(ControlText& control, ClientPoint point) {
  const auto near = control.positionNear(point);
  if (!near) return std::nullopt;
  const TextPart part = control.textAround(*near);
  if (auto word = wordOf(control, part, *near, point)) return word;
  return *near > 0 ? wordOf(control, part, *near - 1, point) : std::nullopt;
}

}  // namespace nhw32
