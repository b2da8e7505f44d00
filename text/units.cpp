#include "text/units.h"

namespace text {
namespace {

/// `value` if it is one that a sequence of `length` bytes may stand for.
Character checked(char32_t value, std::size_t length, char32_t smallest) {
  const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
  if (value < smallest || value > 0x10FFFF || surrogate) {
    return {};
  }
  return {value, length};
}

}  // namespace

Character readSequence(std::string_view bytes) {
  const auto byte = [&](std::size_t i) { return char32_t{static_cast<unsigned char>(bytes[i])}; };
  const auto continues = [&](std::size_t i) {
    return i < bytes.size() && (byte(i) & 0xC0) == 0x80;
  };
  const auto bits = [&](std::size_t i) { return byte(i) & 0x3F; };
  const char32_t lead = byte(0);
  if (lead < 0xC0 || !continues(1)) {
    return {};
  }
  if (lead < 0xE0) {
    return checked((lead & 0x1F) << 6 | bits(1), 2, 0x80);
  }
  if (!continues(2)) {
    return {};
  }
  if (lead < 0xF0) {
    return checked((lead & 0x0F) << 12 | bits(1) << 6 | bits(2), 3, 0x800);
  }
  if (lead > 0xF4 || !continues(3)) {
    return {};
  }
  return checked((lead & 0x07) << 18 | bits(1) << 12 | bits(2) << 6 | bits(3), 4, 0x10000);
}

Unit Utf8Units::decode(std::size_t position) const {
  const Character here = readSequence(text_.substr(position));
  if (here.length == 4) {
    return {static_cast<char16_t>(0xD7C0 + (here.value >> 10)), 1};
  }
  if (here.length != 0) {
    return {static_cast<char16_t>(here.value), here.length};
  }
  if (position == 0) {
    return {kReplacement, 1};
  }
  const Character before = readSequence(text_.substr(position - 1));
  if (before.length != 4) {
    return {kReplacement, 1};
  }
  return {static_cast<char16_t>(0xDC00 | (before.value & 0x3FF)), 3};
}

}  // namespace text
