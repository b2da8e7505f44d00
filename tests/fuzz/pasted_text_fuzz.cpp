/// The word of a pasted text. Input: whether words are headwords, as one byte; then the text in
/// UTF-8.

#include "text/pasted_text.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "tests/fuzz/fuzz_input.h"
#include "text/characters.h"
#include "text/utf.h"
#include "text/word_characters.h"

namespace {

bool isGap(char16_t unit) { return text::isBlank(unit) || text::isLineEnd(unit); }

/// What holds of every word that was found, as opposed to a text that is returned as it is.
void checkWord(std::u16string_view word) {
  require(word.front() != u' ' && word.back() != u' ');
  require(word.find(u"  ") == std::u16string_view::npos);
  require(std::none_of(word.begin(), word.end(),
                       [](char16_t unit) { return unit != u' ' && isGap(unit); }));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::u16string pasted = text::toUtf16(FuzzInput(data + 1, size - 1).rest());
  const bool known = data[0] % 2 != 0;
  const auto isHeadword = [=](std::u16string_view word) {
    require(!word.empty() && std::none_of(word.begin(), word.end(), text::isChinese));
    return known;
  };
  const std::u16string word = text::pastedWord(pasted, isHeadword);
  require(word.empty() == pasted.empty());
  // The longest of the spellings: a ligature of three letters.
  require(word.size() <= 3 * pasted.size());
  if (word != pasted) checkWord(word);
  return 0;
}
