#include "forms/line_ends.h"

namespace forms {

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

}  // namespace forms
