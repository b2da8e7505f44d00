#pragma once

#include <memory>

#include "capture/nhw32/text_provider.h"

namespace nhw32 {

/// Asks every window in the way that its class is known for, and leaves those alone that keep
/// running out of time.
std::unique_ptr<TextProvider> makeRouter();

}  // namespace nhw32
