#include "text/utf.h"

#include "text/utf8_reader.h"

namespace text {
namespace {

bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

/// How the first byte of a sequence begins its character.
struct Lead {
  std::size_t length;
  char32_t bits;
  char32_t smallest;  ///< anything below is overlong
};

Lead readLead(unsigned char byte) {
  if (byte >= 0xC2 && byte <= 0xDF) return {2, byte & 0x1FU, 0x80};
  if (byte >= 0xE0 && byte <= 0xEF) return {3, byte & 0x0FU, 0x800};
  if (byte >= 0xF0 && byte <= 0xF4) return {4, byte & 0x07U, 0x10000};
  return {0, 0, 0};
}

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

Decoded decodeUtf8(std::string_view utf8) {
  const auto first = static_cast<unsigned char>(utf8.front());
  if (first < 0x80) return {first, 1};
  const Lead lead = readLead(first);
  if (lead.length == 0 || lead.length > utf8.size()) return {};
  char32_t character = lead.bits;
  for (std::size_t i = 1; i < lead.length; ++i) {
    const auto byte = static_cast<unsigned char>(utf8[i]);
    if ((byte & 0xC0U) != 0x80U) return {};
    character = (character << 6) | (byte & 0x3FU);
  }
  const bool surrogate = isHighSurrogate(character) || isLowSurrogate(character);
  if (character < lead.smallest || character > 0x10FFFF || surrogate) return {};
  return {character, lead.length};
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
  Utf8Reader reader(utf8);
  while (!reader.atEnd()) out += reader.next();
  return out;
}

}  // namespace text
