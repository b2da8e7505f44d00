#include "capture/nhw32/word_text.h"

#include <exception>
#include <utility>

namespace nhw32 {
namespace {

bool within(char16_t unit, char16_t first, char16_t last) { return unit >= first && unit <= last; }

bool isSurrogatePair(std::u16string_view text) {
  return text.size() >= 2 && within(text[0], u'\xD800', u'\xDBFF') &&
         within(text[1], u'\xDC00', u'\xDFFF');
}

}  // namespace

std::optional<FoundWord> wordAt(std::u16string_view text, std::size_t index) {
  text::Readings readings = text::readingsAt(text, index);
  if (readings.candidates.empty() && !readings.otherwise) return std::nullopt;
  const text::Reading& shown =
      readings.otherwise ? *readings.otherwise : readings.candidates.front();
  FoundWord found{.text = {}, .candidates = {}, .range = {shown.begin, shown.end}};
  if (readings.otherwise) found.text = readings.otherwise->word;
  for (text::Reading& reading : readings.candidates) {
    found.candidates.push_back(std::move(reading.word));
  }
  return found;
}

std::u16string_view chosenText(const Word& word, const text::IsHeadword& isHeadword) {
  try {
    for (const std::u16string& candidate : word.candidates) {
      if (isHeadword && isHeadword(candidate)) return candidate;
    }
  } catch (const std::exception&) {
    // As if no further candidate were a headword.
  }
  return word.text;
}

std::string ansiWord(std::u16string_view word, std::size_t capacity,
                     const CharacterToBytes& toBytes) {
  std::string bytes;
  while (!word.empty()) {
    const std::size_t units = isSurrogatePair(word) ? 2 : 1;
    const auto character = toBytes(word.substr(0, units));
    if (!character) return {};
    if (bytes.size() + character->size() > capacity) break;
    bytes += *character;
    word.remove_prefix(units);
  }
  return bytes;
}

}  // namespace nhw32
