#include "forms/box_text.h"

#include "text/strings.h"

namespace forms {
namespace {

constexpr std::u16string_view kBlanks = u" \t\r\n";

/// Length of the first line of a word that is too long for one.
std::size_t firstLine(std::u16string_view word) {
  const std::size_t separator = word.substr(0, kMaxBoxWord).find_last_of(u"\\/");
  if (separator != std::u16string_view::npos) return separator + 1;
  const bool cutsPair = (word[kMaxBoxWord] & 0xFC00) == 0xDC00;
  return kMaxBoxWord - (cutsPair ? 1 : 0);
}

void appendWord(std::u16string& fitted, std::u16string_view word) {
  while (word.size() > kMaxBoxWord) {
    const std::size_t length = firstLine(word);
    fitted.append(word.substr(0, length)).append(u"\n");
    word.remove_prefix(length);
  }
  fitted.append(word);
}

}  // namespace

std::u16string fittedToBox(std::u16string_view text) {
  const std::u16string whole = text::shortened(text, kMaxBoxText);
  std::u16string fitted;
  std::size_t start = 0;
  for (std::size_t blank = 0;
       (blank = whole.find_first_of(kBlanks, start)) != std::u16string::npos;) {
    appendWord(fitted, std::u16string_view(whole).substr(start, blank - start));
    fitted += whole[blank];
    start = blank + 1;
  }
  appendWord(fitted, std::u16string_view(whole).substr(start));
  return fitted;
}

}  // namespace forms
