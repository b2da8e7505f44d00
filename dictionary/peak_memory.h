#pragma once

#include <cstddef>

namespace dictionary {

/// The most memory, in bytes, that this process has held at once; 0 where the system does not say.
std::size_t peakMemory();

}  // namespace dictionary
