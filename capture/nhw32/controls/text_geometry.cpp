#include "capture/nhw32/controls/text_geometry.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "capture/nhw32/word_text.h"

// EM_CHARFROMPOS and its like return the position nearest to a point, wherever the point is: also
// right of a line's end and below the last line. So the word's box is computed, and the point
// checked against the character's cell. Left and right edges are the corners of neighbouring
// characters. The lower edge is the top of the next line or, on the last line, an estimate: from
// the height of the line before, the caret, or the word's width.
namespace nhw32 {
namespace {

/// The DPI of the sizes in pixels below.
constexpr int kDefaultDpi = 96;

/// By how much estimatedHeight may err. In fonts as wide as Arial, Times New Roman and Courier New
/// it makes 0.9 to 1.4 times the true height of 98 of 100 of the commonest 20,000 English words.
constexpr double kEstimateError = 1.5;

/// How wide a letter is in ems, about: between Times New Roman's and Verdana's.
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

/// The height of a word's line in pixels as the widths of the word and of one of its letters let
/// expect it.
double estimatedHeight(std::u16string_view word, int width, int letterWidth) {
  // Lines of usual fonts are 1.13 to 1.33 ems high, letters of fixed pitch 0.5 to 0.6 ems wide.
  constexpr double kOfEm = 1.3;
  constexpr double kOfFixedLetter = 2.3;
  double ems = 0;
  bool differ = false;
  for (const char16_t letter : word) {
    ems += usualWidthOf(letter);
    differ = differ || usualWidthOf(letter) != usualWidthOf(word.front());
  }
  const bool fixedPitch = differ && width == letterWidth * static_cast<int>(word.size());
  return fixedPitch ? kOfFixedLetter * letterWidth : kOfEm * width / ems;
}

/// The line of a control's text in which a character stands whose corner is known.
class Line {
 public:
  Line(ControlText& control, std::size_t position, ScreenPoint corner)
      : control_(control),
        number_(control.lineOf(position)),
        start_(control.startOf(number_).value_or(0)),
        next_(control.startOf(number_ + 1)),
        position_(position),
        corner_(corner) {}

  /// Left edge of a character; none where it stands on another line or behind the text.
  std::optional<int> leftOf(std::size_t position) {
    if (position == position_) return corner_.x;
    if (position < start_ || (next_ && position >= *next_)) return std::nullopt;
    const auto corner = control_.cornerOf(position);
    return corner ? std::optional(corner->x) : std::nullopt;
  }

  /// Right edge of a character whose left edge is known. What ends the text or a wrapped line has
  /// nothing behind it that would tell; it counts as wide as its neighbour.
  int rightOf(std::size_t position, int left) {
    if (const auto next = leftOf(position + 1); next && *next > left) return *next;
    const auto before = position > start_ ? leftOf(position - 1) : std::nullopt;
    return before && *before < left ? left + (left - *before) : left + scaled(kUsualWidth);
  }

  /// The lower edge where the lines' places tell it: by the next line's, or by that of the line
  /// before where the lines are alike.
  std::optional<int> knownBottom() {
    if (const auto below = next_ ? control_.cornerOf(*next_) : std::nullopt;
        below && below->y > corner_.y) {
      return below->y;
    }
    const auto above = control_.linesAreAlike() ? heightAbove() : std::nullopt;
    return above ? std::optional(corner_.y + *above) : std::nullopt;
  }

  /// The lower edge of a last line, whose letters tell its height as `estimate`.
  int likelyBottom(double estimate) {
    const int likely = std::max(scaled(kUsualHeight), whole(estimate));
    if (const auto said = control_.bottomOfLastLine(corner_.y)) {
      // A box may be higher than its only line; where lines differ, so do the letters of one.
      const int most =
          control_.linesAreAlike() ? corner_.y + whole(likely * kEstimateError) : *said;
      return std::max(std::min(*said, most), corner_.y + whole(estimate / kEstimateError));
    }
    if (control_.linesAreAlike()) return corner_.y + likely;
    // The line before may be of another size, and is where it is much higher. Of narrow faces,
    // whose lines are the highest for their letters, four fifths are estimated.
    const int above = heightAbove().value_or(0);
    return corner_.y + (4 * above <= 5 * likely ? std::max(above, likely) : likely);
  }

  /// The part of a range that stands on this line.
  [[nodiscard]] Range clipped(Range range) const {
    return {std::max(range.begin, start_), next_ ? std::min(range.end, *next_) : range.end};
  }

 private:
  /// Of the system's usual fonts at kDefaultDpi, in pixels: for what nothing else tells.
  static constexpr int kUsualWidth = 8;
  static constexpr int kUsualHeight = 16;

  static int whole(double pixels) { return static_cast<int>(std::ceil(pixels)); }

  [[nodiscard]] int scaled(int pixels) const {
    return static_cast<int>(
        std::lround(static_cast<double>(pixels) * control_.dpi() / kDefaultDpi));
  }

  /// The height of the line before.
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
  ScreenPoint corner_;
};

/// The word of the character at `position`, where that character lies under the point.
std::optional<PlacedWord> wordOf(ControlText& control, const TextPart& part, std::size_t position,
                                 ScreenPoint point) {
  if (position < part.first) return std::nullopt;
  const auto word = wordAt(part.text, position - part.first);
  const auto corner = word ? control.cornerOf(position) : std::nullopt;
  if (!corner || point.x < corner->x || point.y < corner->y) return std::nullopt;
  Line line(control, position, *corner);
  const int letterEnd = line.rightOf(position, corner->x);
  if (point.x >= letterEnd) return std::nullopt;
  const auto known = line.knownBottom();
  if (known && point.y >= *known) return std::nullopt;
  const Range shown = line.clipped({part.first + word->begin, part.first + word->end});
  // Meanwhile the text may have changed.
  if (position < shown.begin || position >= shown.end) return std::nullopt;
  const int left = line.leftOf(shown.begin).value_or(corner->x);
  const int right = line.rightOf(shown.end - 1, line.leftOf(shown.end - 1).value_or(corner->x));
  const std::u16string_view letters =
      std::u16string_view(part.text).substr(shown.begin - part.first, shown.end - shown.begin);
  const int bottom =
      known ? *known
            : line.likelyBottom(estimatedHeight(letters, right - left, letterEnd - corner->x));
  if (point.y >= bottom) return std::nullopt;
  return PlacedWord{.text = part.text.substr(word->begin, word->end - word->begin),
                    .box = {left, corner->y, right, bottom}};
}

}  // namespace

std::optional<PlacedWord> wordUnder(ControlText& control, ScreenPoint point) {
  const std::size_t near = control.positionNear(point);
  const TextPart part = control.textAround(near);
  if (auto word = wordOf(control, part, near, point)) return word;
  return near > 0 ? wordOf(control, part, near - 1, point) : std::nullopt;
}

}  // namespace nhw32
