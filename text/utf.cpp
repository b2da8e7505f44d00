// UTF-8 as RFC 3629 defines it: the lead byte determines how many continuation bytes (10xxxxxx)
// follow. Each byte of an invalid sequence reads as one U+FFFD, whatever follows, so that a text
// can be read from any position where a unit ends without knowing what comes before.

#include "text/utf.h"

#include "text/characters.h"

namespace text {
namespace {

char byteOf(char32_t bits) { return static_cast<char>(static_cast<unsigned char>(bits)); }
char continuation(char32_t bits) { return byteOf(0x80 | (bits & 0x3F)); }

void appendUtf8(std::string& out, char32_t character) {
  if (character < 0x80) {
    out += byteOf(character);
  } else if (character < 0x800) {
    out += byteOf(0xC0 | (character >> 6));
    out += continuation(character);
  } else if (character < 0x10000) {
    out += byteOf(0xE0 | (character >> 12));
    out += continuation(character >> 6);
    out += continuation(character);
  } else {
    out += byteOf(0xF0 | (character >> 18));
    out += continuation(character >> 12);
    out += continuation(character >> 6);
    out += continuation(character);
  }
}

/// `value` if a sequence of `length` bytes may encode it; `smallest` is the least code point that
/// needs so many bytes, below which the sequence is overlong.
Character checked(char32_t value, std::size_t length, char32_t smallest) {
  const bool surrogate = isHighSurrogate(value) || isLowSurrogate(value);
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
  // ASCII, or a continuation byte on its own. 0xC0 and 0xC1 would be overlong; see checked().
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

/// Units that at() does not decode itself. In the middle of a sequence of four bytes, at its second
/// byte, the unit is the low surrogate: found by decoding again from the byte before.
Unit Utf8Units::decode(std::size_t position) const {
  const Character here = readSequence(text_.substr(position));
  if (here.length == 4) {
    // 0xD800 plus the upper ten bits of the code point less 0x10000.
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

std::string toUtf8(std::u16string_view utf16) {
  std::string out;
  out.reserve(utf16.size());
  for (std::size_t i = 0; i < utf16.size(); ++i) {
    char32_t character = utf16[i];
    if (isHighSurrogate(character) && i + 1 < utf16.size() && isLowSurrogate(utf16[i + 1])) {
      ++i;
      character = 0x10000 + ((character - 0xD800) << 10) + (utf16[i] - 0xDC00U);
    } else if (isHighSurrogate(character) || isLowSurrogate(character)) {
      character = kReplacement;
    }
    appendUtf8(out, character);
  }
  return out;
}

std::u16string toUtf16(std::string_view utf8) {
  std::u16string out;
  out.reserve(utf8.size());
  const Utf8Units units(utf8);
  for (std::size_t position = 0; position < utf8.size();) {
    const Unit unit = units.at(position);
    out += unit.value;
    position += unit.length;
  }
  return out;
}

}  // namespace text
