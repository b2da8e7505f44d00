#pragma once

#include <functional>
#include <memory>

#include "capture/nhw32/text_provider.h"
#include "capture/nhw32/uia/automation_calls.h"

namespace nhw32 {

/// What asking by UI Automation rests on.
struct AutomationSystem {
  /// Makes the client; may take long where there is none.
  std::function<HRESULT(AutomationClient2** client)> makeClient;
  Clock now;
};

/// How long a system without UI Automation is believed to stay so.
inline constexpr std::chrono::seconds kClientPause{60};

/// Asks windows for their words by UI Automation: word processors, spreadsheets, browsers, readers,
/// consoles. No call is made that could end after kQuestionLimit; making the client comes on top
/// and may take long, but is not tried again for kClientPause. The first question prepares COM for
/// the asking thread, on which the provider has to go as well.
std::unique_ptr<TextProvider> makeAutomationProvider();
std::unique_ptr<TextProvider> makeAutomationProvider(AutomationSystem system);

}  // namespace nhw32
