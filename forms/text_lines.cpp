#include "forms/text_lines.h"

#include <algorithm>

#include "text/strings.h"

namespace forms {
namespace {

bool isLineEnd(std::u16string_view text, std::size_t at) {
  return at + 1 < text.size() && text[at] == u'\r' && text[at + 1] == u'\n';
}

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

std::u16string withWindowsLineEnds(std::u16string_view text) {
  std::u16string lines;
  lines.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool carriageReturn = text[at] == u'\r';
    if (!carriageReturn && text[at] != u'\n') {
      lines += text[at];
      continue;
    }
    lines += u"\r\n";
    if (carriageReturn && at + 1 < text.size() && text[at + 1] == u'\n') ++at;
  }
  return lines;
}

std::u16string withFirmBlanks(std::u16string_view text) {
  std::u16string firm(text);
  for (std::size_t i = 0; i < firm.size(); ++i) {
    if (firm[i] == u' ' && (i == 0 || firm[i - 1] == u'\n')) firm[i] = kNoBreakSpace;
  }
  return firm;
}

// The control counts each CR LF before the index as one.
std::size_t controlPosition(std::u16string_view text, std::size_t index) {
  index = std::min(index, text.size());
  std::size_t pairs = 0;
  for (std::size_t at = 0; at < index; ++at) {
    if (!isLineEnd(text, at)) continue;
    if (at + 1 == index) return at - pairs;
    ++pairs;
    ++at;
  }
  return index - pairs;
}

// The inverse: walks the text, as there is no way to jump.
std::size_t textPosition(std::u16string_view text, std::size_t position) {
  std::size_t at = 0;
  for (; position > 0 && at < text.size(); --position) at += isLineEnd(text, at) ? 2 : 1;
  return at;
}

// Blanks are kept as they are; only the words between them are broken.
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
