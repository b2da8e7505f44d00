#include "capture/nhw32/control_text.h"

#include <algorithm>

#include "capture/nhw32/word_at.h"

namespace nhw32 {
namespace {

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
    return before && *before < left ? left + (left - *before) : left + kUsualWidth;
  }

  /// From the next line's place or that of the line before; failing those, as the control says.
  int height() {
    if (const auto below = next_ ? control_.cornerOf(*next_) : std::nullopt;
        below && below->y > corner_.y) {
      return below->y - corner_.y;
    }
    const auto start = number_ > 0 ? control_.startOf(number_ - 1) : std::nullopt;
    if (const auto above = start ? control_.cornerOf(*start) : std::nullopt;
        above && above->y < corner_.y) {
      return corner_.y - above->y;
    }
    return control_.lineHeight().value_or(kUsualHeight);
  }

  /// The part of a range that stands on this line.
  [[nodiscard]] Range clipped(Range range) const {
    return {std::max(range.begin, start_), next_ ? std::min(range.end, *next_) : range.end};
  }

 private:
  /// Of the system's usual fonts at 96 dpi, in pixels: for what nothing else tells.
  static constexpr int kUsualWidth = 8;
  static constexpr int kUsualHeight = 16;

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
  if (point.x >= line.rightOf(position, corner->x)) return std::nullopt;
  const int bottom = corner->y + line.height();
  if (point.y >= bottom) return std::nullopt;
  const Range shown = line.clipped({part.first + word->begin, part.first + word->end});
  const int left = line.leftOf(shown.begin).value_or(corner->x);
  const int right = line.rightOf(shown.end - 1, line.leftOf(shown.end - 1).value_or(corner->x));
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
