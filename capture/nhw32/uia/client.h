#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>

#include "capture/nhw32/reader.h"
#include "capture/nhw32/uia/uia_interfaces.h"

namespace nhw32 {

/// Returns the build number of Windows, 0 if it is not known.
std::uint32_t windowsBuild();

/// The system as the UI Automation reader sees it; tests pass their own.
struct UiaSystem {
  /// Creates the client and stores one reference to it; may take long if UI Automation is missing.
  /// May throw or succeed without storing a client, both of which count as failures.
  std::function<HRESULT(IUIAutomation2** client)> makeClient;
  /// The clock of the time limits.
  Clock now = std::chrono::steady_clock::now;
  std::function<std::uint32_t()> build = windowsBuild;
};

/// Delay before the client is created again after a failure: on a system without UI Automation each
/// attempt loads libraries.
inline constexpr std::chrono::seconds kClientRetryDelay{60};

/// Returns a reader that uses UI Automation: for word processors, spreadsheets (the text that is
/// edited, and cells of one word), browsers, document viewers, and consoles from Windows 11 22H2
/// on; older consoles are never asked. Makes no call that could end later than kUiaQuestionTime
/// after the question began, kUiaFirstQuestionTime for the first one to a process (limits.h);
/// creating the client is not included. The first question initialises COM for its thread, in the
/// multithreaded apartment; the reader must be destroyed on the same thread. Without a client, or
/// on a thread of a single-threaded apartment, every answer is Outcome::kNone.
std::unique_ptr<WordReader> makeUiaReader();
std::unique_ptr<WordReader> makeUiaReader(UiaSystem system);

}  // namespace nhw32
