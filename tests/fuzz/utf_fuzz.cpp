/// The conversions between UTF-8 and UTF-16. Input: any bytes, taken as either.

#include "text/utf.h"

#include <cstring>
#include <string>
#include <string_view>

#include "tests/fuzz/fuzz_input.h"

namespace {

bool isSurrogate(char16_t unit, char16_t first) { return unit >= first && unit < first + 0x400; }

bool pairsUp(std::u16string_view units) {
  for (std::size_t i = 0; i < units.size(); ++i) {
    if (isSurrogate(units[i], 0xD800)) {
      ++i;
      if (i == units.size() || !isSurrogate(units[i], 0xDC00)) {
        return false;
      }
    } else if (isSurrogate(units[i], 0xDC00)) {
      return false;
    }
  }
  return true;
}

void checkReading(std::string_view utf8) {
  const std::u16string units = text::toUtf16(utf8);
  require(units.size() <= utf8.size());
  require(pairsUp(units));
  const std::string written = text::toUtf8(units);
  require(text::toUtf16(written) == units);
  // Without a replacement nothing was invalid, and valid texts come back as they were.
  require(written == utf8 || units.find(u'\uFFFD') != std::u16string::npos);
}

void checkWriting(std::u16string_view units) {
  const std::u16string readBack = text::toUtf16(text::toUtf8(units));
  require(readBack.size() == units.size());
  require(pairsUp(readBack));
  require(readBack == units || !pairsUp(units));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  checkReading(FuzzInput(data, size).rest());
  std::u16string units(size / 2, u'\0');
  if (!units.empty()) {
    std::memcpy(units.data(), data, units.size() * 2);
  }
  checkWriting(units);
  return 0;
}
