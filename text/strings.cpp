#include "text/strings.h"

#include "text/characters.h"

namespace text {

std::u16string shortened(std::u16string_view whole, std::size_t longest) {
  if (whole.size() <= longest) return std::u16string(whole);
  const std::size_t kept = longest - 1;  // without the ellipsis
  std::u16string_view end = whole.substr(whole.size() - (kept / 2));
  std::u16string_view beginning = whole.substr(0, kept - end.size());
  // A half of a pair at the cut is left out, which makes the result one unit shorter.
  if (isHighSurrogate(beginning.back())) beginning.remove_suffix(1);
  if (isLowSurrogate(end.front())) end.remove_prefix(1);
  std::u16string result(beginning);
  return result.append(u"…").append(end);
}

std::u16string onOneLine(std::u16string_view text) {
  std::u16string line;
  line.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool carriageReturn = text[at] == u'\r';
    line += carriageReturn || text[at] == u'\n' ? u' ' : text[at];
    if (carriageReturn && at + 1 < text.size() && text[at + 1] == u'\n') ++at;
  }
  return line;
}

}  // namespace text
