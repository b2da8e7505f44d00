#include "forms/text_lines.h"

#include <algorithm>

namespace forms {
namespace {

bool isLineEnd(std::u16string_view text, std::size_t at) {
  return at + 1 < text.size() && text[at] == u'\r' && text[at + 1] == u'\n';
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

std::size_t textPosition(std::u16string_view text, std::size_t position) {
  std::size_t at = 0;
  for (; position > 0 && at < text.size(); --position) at += isLineEnd(text, at) ? 2 : 1;
  return at;
}

}  // namespace forms
