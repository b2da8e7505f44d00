#pragma once

#include <optional>

#include "capture/nhw32/reader.h"
#include "capture/nhw32/uia/calls.h"
#include "capture/nhw32/uia/uia_interfaces.h"

/// Reading the text of an element by UI Automation.
namespace nhw32 {

/// How the word under a point is looked for.
enum class Search {
  /// At the character nearest to the point, and in its line where that character is not there.
  kCharacter,
  /// In the line at once. No range is moved by more than that line's characters, and none beyond
  /// the lines before and after it.
  kLine,
};

/// Returns the word under `point` and its box, otherwise nullopt. Reads at most text::kMaxReach
/// characters on each side of the point, or three lines, however long the text is. Throws NoAnswer.
std::optional<Word> wordUnder(IUIAutomationTextPattern& pattern, ScreenPoint point, Search search,
                              UiaCalls& calls);

}  // namespace nhw32
