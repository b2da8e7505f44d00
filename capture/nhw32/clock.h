#pragma once

#include <chrono>
#include <functional>

namespace nhw32 {

/// Tells the time.
using Clock = std::function<std::chrono::steady_clock::time_point()>;

}  // namespace nhw32
