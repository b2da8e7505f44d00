#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "capture/nhw32/reader.h"
#include "capture/nhw32/uia/uia_interfaces.h"

namespace nhw32 {

/// The system as the UI Automation reader sees it; tests pass their own.
struct UiaSystem {
  /// Creates the client and stores one reference to it; may take long if UI Automation is missing.
  std::function<HRESULT(IUIAutomation2** client)> makeClient;
  Clock now;
};

/// Delay before the client is created again after a failure.
inline constexpr std::chrono::seconds kClientRetryDelay{60};

/// Returns a reader that uses UI Automation: for word processors, spreadsheets, browsers, document
/// viewers, consoles. Makes no call that could end later than kUiaQuestionTime after the question
/// began; creating the client is not included. The first question initialises COM for its thread,
/// on which the reader must be destroyed.
std::unique_ptr<WordReader> makeUiaReader();
std::unique_ptr<WordReader> makeUiaReader(UiaSystem system);

}  // namespace nhw32
