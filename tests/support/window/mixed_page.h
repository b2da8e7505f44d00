#pragma once

#include <random>
#include <string>
#include <vector>

namespace support {

/// A page of made-up text that knows, for each of its characters, which word is handed over there
/// if no dictionary is asked.
struct MixedPage {
  std::u16string text;
  std::vector<std::u16string> words;  ///< of each character; "" where there is none
};

struct MixedPageDesign {
  std::size_t length = 2000;    ///< at least as many characters
  std::size_t lineLength = 60;  ///< a line ends after about as many; 0: one line
  std::u16string lineEnd = u"\r\n";
  unsigned seed = 1;
};

/// English words, some with hyphens and apostrophes, numbers, punctuation, and Chinese words that
/// touch the English ones.
MixedPage makeMixedPage(const MixedPageDesign& design);

}  // namespace support
