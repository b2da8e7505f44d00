#pragma once

#include <cstdint>

#include "capture/nhw32/text_provider.h"

namespace nhw32 {

/// What it means that a message to a window came back without an answer, by the system's last error
/// (0: the system gave none). A window that is counted as hung is given up without an error.
Outcome outcomeOfSilence(std::uint32_t lastError);

}  // namespace nhw32
