#include "capture/nhw32/controls/control_layout.h"

namespace nhw32 {
namespace {

/// Appends the low `size` bytes of a number, the lowest first.
void append(std::vector<std::byte>& bytes, std::uint64_t value, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) {
    bytes.push_back(static_cast<std::byte>(value >> (8 * i) & 0xFF));
  }
}

}  // namespace

// Not a copy of our own TEXTRANGE: in a 32-bit process its address has 4 bytes.
std::vector<std::byte> textRangeBytes(Bitness bitness, std::int32_t begin, std::int32_t end,
                                      std::uint64_t textAddress) {
  std::vector<std::byte> bytes;
  append(bytes, static_cast<std::uint32_t>(begin), 4);
  append(bytes, static_cast<std::uint32_t>(end), 4);
  append(bytes, textAddress, bitness == Bitness::kBits64 ? 8 : 4);
  return bytes;
}

bool isWideText(std::span<const std::byte> written, std::size_t count) {
  constexpr std::byte kNul{0};
  // ANSI text is shorter than `end` bytes and has one NUL byte, followed by kUnwritten: two NUL
  // bytes in a row occur only as the terminator of UTF-16.
  const std::size_t end = 2 * count;
  return count > 0 && end + 1 < written.size() && written[end] == kNul && written[end + 1] == kNul;
}

}  // namespace nhw32
