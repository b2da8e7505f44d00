#include "capture/nhw32/ansi_word.h"

namespace nhw32 {
namespace {

bool isPair(std::u16string_view text) {
  return text.size() >= 2 && text[0] >= 0xD800 && text[0] <= 0xDBFF && text[1] >= 0xDC00 &&
         text[1] <= 0xDFFF;
}

std::u16string_view plain(std::u16string_view character) {
  if (character == u"\u2019") return u"'";
  if (character == u"\u2010" || character == u"\u2011") return u"-";
  return character;
}

}  // namespace

std::string ansiWord(std::u16string_view word, std::size_t capacity,
                     const CharacterToBytes& toBytes) {
  std::string bytes;
  while (!word.empty()) {
    const std::size_t units = isPair(word) ? 2 : 1;
    const auto character = toBytes(plain(word.substr(0, units)));
    if (!character) return {};
    if (bytes.size() + character->size() > capacity) break;
    bytes += *character;
    word.remove_prefix(units);
  }
  return bytes;
}

}  // namespace nhw32
