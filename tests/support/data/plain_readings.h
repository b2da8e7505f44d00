#pragma once

#include <string>
#include <utility>

#include "text/readings.h"

namespace support {

/// The word that is handed over without a dictionary; "" for none.
inline std::u16string plainWord(const text::Readings& readings) {
  return readings.otherwise ? readings.otherwise->word : u"";
}

/// The readings of a text that is `word`, of which none is asked for.
inline text::Readings plainReadings(std::u16string word) {
  const std::size_t end = word.size();
  return {.candidates = {}, .otherwise = text::Reading{std::move(word), 0, end}};
}

}  // namespace support
