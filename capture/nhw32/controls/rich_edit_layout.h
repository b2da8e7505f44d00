#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace nhw32 {

/// How wide the pointers of a target's program are.
enum class Bitness { bits32, bits64 };

/// The structure that EM_GETTEXTRANGE reads (TEXTRANGE), byte for byte as the target's program lays
/// it out: first and last position (32 bits each), then the address of the text buffer.
std::vector<std::byte> textRangeBytes(Bitness bitness, std::int32_t begin, std::int32_t end,
                                      std::uint64_t textAddress);

/// What the text buffer is filled with before a control writes into it.
inline constexpr std::byte kUnwritten{0xFF};

/// Whether what a control wrote into a buffer full of kUnwritten is UTF-16, for `count` characters
/// or bytes as it said; else it is bytes of the ANSI code page. The NUL behind the text tells:
/// neither the control's class nor the procedure of a window that was subclassed is sure to.
bool isWideText(std::span<const std::byte> written, std::size_t count);

}  // namespace nhw32
