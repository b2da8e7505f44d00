#pragma once

#include "capture/nhw32/text_provider.h"
#include "capture/nhw32/uia/automation_calls.h"
#include "capture/nhw32/uia/automation_owners.h"

namespace nhw32 {

/// The text pattern of the element under the question's point, or of the nearest of ten ancestors
/// that has one. None where one of those elements is a password field or does not say whether it
/// is, and where the text belongs neither to the window's process nor to its top-level window.
Reference<AutomationTextPattern> textPatternAt(AutomationClient& client, const Question& question,
                                               AutomationCalls& calls);

}  // namespace nhw32
