#pragma once

#include <random>
#include <string>
#include <vector>

namespace support {

/// A page of English text made of known words, the same for the same seed.
class EnglishPage {
 public:
  struct Placed {
    int start = 0;  ///< index of its first character in text()
    std::wstring word;
  };

  EnglishPage(unsigned seed, int lines, int lineLength);

  /// Lines end in CR LF.
  [[nodiscard]] const std::wstring& text() const { return text_; }
  [[nodiscard]] const std::vector<Placed>& words() const { return words_; }

 private:
  std::wstring text_;
  std::vector<Placed> words_;
};

}  // namespace support
