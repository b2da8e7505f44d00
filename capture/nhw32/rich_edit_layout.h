#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace nhw32 {

/// How wide the pointers of a target's program are.
enum class Bitness { bits32, bits64 };

/// The structure that EM_GETTEXTRANGE reads (TEXTRANGE), byte for byte as the target's program lays
/// it out: first and last position (32 bits each), then the address of the text buffer.
std::vector<std::byte> textRangeBytes(Bitness bitness, std::int32_t begin, std::int32_t end,
                                      std::uint64_t textAddress);

}  // namespace nhw32
