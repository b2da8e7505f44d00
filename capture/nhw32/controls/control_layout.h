#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// How the messages of edit and rich edit controls lay out numbers and texts. Portable.
namespace nhw32 {

/// EM_CHARFROMPOS of edit controls returns only the low 16 bits of a position and a line number.
/// Returns the least number not below `base` with these low bits. That is the true one for a
/// position if `base` is the start of its line (of at most 65,535 characters), and for a line if
/// `base` is the first visible one.
constexpr std::size_t expandLow16(std::size_t base, std::uint16_t low) {
  return base + static_cast<std::uint16_t>(low - static_cast<std::uint16_t>(base));
}

/// The pointer size of a target's process.
enum class Bitness { kBits32, kBits64 };

/// Returns the bytes of a TEXTRANGE, which EM_GETTEXTRANGE reads, as the target's process lays it
/// out: first and last position (32 bits each), then the address of the text buffer.
std::vector<std::byte> textRangeBytes(Bitness bitness, std::int32_t begin, std::int32_t end,
                                      std::uint64_t textAddress);

/// Fills the text buffer before a control writes into it.
inline constexpr std::byte kUnwritten{0xFF};

/// Returns whether the text that a control wrote into a buffer full of kUnwritten is UTF-16, given
/// the count of characters or bytes that it returned; otherwise it is in the ANSI code page.
/// Decided by the width of the terminating NUL: neither the control's class nor IsWindowUnicode is
/// reliable for a window that was subclassed.
bool isWideText(std::span<const std::byte> written, std::size_t count);

}  // namespace nhw32
