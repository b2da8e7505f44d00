#include "text/utf.h"

#include "text/units.h"

namespace text {
namespace {

bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

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

}  // namespace

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
