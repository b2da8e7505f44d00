#include "capture/nhw32/ansi_word.h"

#include "text/characters.h"

namespace nhw32 {
namespace {

bool beginsWithSurrogatePair(std::u16string_view text) {
  return text.size() >= 2 && text::isHighSurrogate(text[0]) && text::isLowSurrogate(text[1]);
}

}  // namespace

std::string ansiWord(std::u16string_view word, std::size_t capacity,
                     const CharacterToBytes& toBytes) {
  std::string bytes;
  while (!word.empty()) {
    const std::size_t units = beginsWithSurrogatePair(word) ? 2 : 1;
    const auto character = toBytes(word.substr(0, units));
    if (!character) return {};
    if (bytes.size() + character->size() > capacity) break;
    bytes += *character;
    word.remove_prefix(units);
  }
  return bytes;
}

}  // namespace nhw32
