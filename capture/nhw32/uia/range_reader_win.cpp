#include "capture/nhw32/uia/range_reader.h"

#include "capture/nhw32/uia/geometry.h"

// What a provider returns is not relied on: a call that succeeds may leave its result null or
// unchanged.
namespace nhw32 {
namespace {

TextRange notNull(TextRange range) {
  if (!range) throw NoAnswer(Outcome::kNone);
  return range;
}

}  // namespace

TextRange RangeReader::nearest(IUIAutomationTextPattern& pattern) const {
  const POINT point{point_.x, point_.y};
  TextRange range;
  calls_.make([&] { return pattern.RangeFromPoint(point, range.GetAddressOf()); });
  return notNull(range);
}

TextRange RangeReader::copyOf(const TextRange& range) const {
  TextRange copy;
  calls_.make([&] { return range->Clone(copy.GetAddressOf()); });
  return notNull(copy);
}

void RangeReader::expand(const TextRange& range, TextUnit unit) const {
  calls_.make([&] { return range->ExpandToEnclosingUnit(unit); });
}

int RangeReader::moveBy(const TextRange& range, int characters) const {
  int moved = 0;
  calls_.make([&] { return range->Move(TextUnit_Character, characters, &moved); });
  return moved;
}

int RangeReader::moveEndBy(const TextRange& range, TextPatternRangeEndpoint end, TextUnit unit,
                           int count) const {
  int moved = 0;
  calls_.make([&] { return range->MoveEndpointByUnit(end, unit, count, &moved); });
  return moved;
}

void RangeReader::moveEndTo(const TextRange& range, TextPatternRangeEndpoint end,
                            const TextRange& other, TextPatternRangeEndpoint otherEnd) const {
  calls_.make([&] { return range->MoveEndpointByRange(end, other.Get(), otherEnd); });
}

std::optional<std::u16string> RangeReader::textOf(const TextRange& range, std::size_t limit) const {
  UniqueBstr text;
  calls_.make([&] { return range->GetText(static_cast<int>(limit), text.out()); });
  // It may be truncated there, or a program may not keep to the limit.
  if (text.view().size() >= limit) return std::nullopt;
  return std::u16string(text.view());
}

std::optional<ScreenBox> RangeReader::boxOf(const TextRange& range) const {
  UniqueDoubleArray rectangles;
  calls_.make([&] { return range->GetBoundingRectangles(rectangles.out()); });
  return boxUnder(rectangles.values(), point_);
}

}  // namespace nhw32
