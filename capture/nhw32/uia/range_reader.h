#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "capture/nhw32/reader.h"
#include "capture/nhw32/uia/calls.h"
#include "capture/nhw32/uia/com.h"
#include "capture/nhw32/uia/uia_interfaces.h"

namespace nhw32 {

using TextRange = ComPtr<IUIAutomationTextRange>;

/// The calls to the ranges of a text about one point. All functions throw NoAnswer; ranges that are
/// passed are not null.
class RangeReader {
 public:
  RangeReader(ScreenPoint point, UiaCalls& calls) : point_(point), calls_(calls) {}

  /// Returns the range that is told to be nearest to the point.
  TextRange nearest(IUIAutomationTextPattern& pattern) const;
  [[nodiscard]] TextRange copyOf(const TextRange& range) const;
  void expand(const TextRange& range, TextUnit unit) const;

  /// Moves a range by characters; returns by how many it has been moved.
  [[nodiscard]] int moveBy(const TextRange& range, int characters) const;
  /// Moves one end of a range; returns by how many units it has been moved, which are fewer than
  /// `count` at the beginning and the end of the text.
  [[nodiscard]] int moveEndBy(const TextRange& range, TextPatternRangeEndpoint end, TextUnit unit,
                              int count) const;
  /// Moves one end of a range to an end of another.
  void moveEndTo(const TextRange& range, TextPatternRangeEndpoint end, const TextRange& other,
                 TextPatternRangeEndpoint otherEnd) const;

  /// Returns the text of a range, nullopt if it has `limit` code units or more.
  [[nodiscard]] std::optional<std::u16string> textOf(const TextRange& range,
                                                     std::size_t limit) const;
  /// Returns the rectangle of a range that contains the point.
  [[nodiscard]] std::optional<ScreenBox> boxOf(const TextRange& range) const;

 private:
  ScreenPoint point_;
  UiaCalls& calls_;
};

}  // namespace nhw32
