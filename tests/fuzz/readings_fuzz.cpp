/// The readings of a word. Input: a text in UTF-8, which is pointed at in every place.

#include "text/readings.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "tests/fuzz/fuzz_input.h"
#include "text/characters.h"
#include "text/utf.h"

namespace {

void checkReading(const text::Reading& reading, std::size_t size, std::size_t index) {
  require(!reading.word.empty() && reading.word.size() <= text::kMaxReading);
  require(reading.begin <= index && index < reading.end && reading.end <= size);
}

void checkReadings(const text::Readings& readings, std::size_t size, std::size_t index) {
  const auto& candidates = readings.candidates;
  require(candidates.size() <= text::kMaxReadings);
  for (auto i = candidates.begin(); i != candidates.end(); ++i) {
    checkReading(*i, size, index);
    require(std::none_of(i->word.begin(), i->word.end(), text::isChinese));
    require(std::none_of(candidates.begin(), i,
                         [&](const text::Reading& other) { return other.word == i->word; }));
  }
  if (readings.otherwise) checkReading(*readings.otherwise, size, index);
}

/// What is farther away makes no difference.
void checkReach(std::u16string_view text, std::size_t index, const text::Readings& readings) {
  const std::size_t begin = index > text::kMaxReach ? index - text::kMaxReach : 0;
  const std::u16string_view around = text.substr(begin, index + 1 + text::kMaxReach - begin);
  text::Readings near = text::readingsAt(around, index - begin);
  const auto move = [&](text::Reading& reading) {
    reading.begin += begin;
    reading.end += begin;
  };
  std::for_each(near.candidates.begin(), near.candidates.end(), move);
  if (near.otherwise) move(*near.otherwise);
  require(near.candidates == readings.candidates && near.otherwise == readings.otherwise);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kQuick = 1 << 10;
  const std::u16string text = text::toUtf16(FuzzInput(data, size).rest().substr(0, kQuick));
  for (std::size_t index = 0; index <= text.size(); ++index) {
    const text::Readings readings = text::readingsAt(text, index);
    checkReadings(readings, text.size(), index);
    checkReach(text, index, readings);
  }
  return 0;
}
