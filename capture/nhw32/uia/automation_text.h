#pragma once

#include <optional>

#include "capture/nhw32/text_provider.h"
#include "capture/nhw32/uia/automation_calls.h"

namespace nhw32 {

/// The word under `point` in the text that `pattern` tells of. However long the text is, no more
/// than some hundred characters around the point are asked for.
std::optional<Word> wordUnder(AutomationTextPattern& pattern, ScreenPoint point,
                              AutomationCalls& calls);

}  // namespace nhw32
