#include "text/order.h"
#include "text/utf8_reader.h"

namespace text {
namespace {

/// Matches from left to right. Where a match fails, only the last "%" takes one unit more: whatever
/// an earlier one could take, the last can take as well.
template <typename Reader>
bool likeUnits(Reader pattern, Reader text) {
  bool seenPercent = false;
  Reader patternBehindPercent = pattern;
  Reader textBehindPercent = text;
  while (true) {
    if (pattern.atEnd()) {
      if (text.atEnd()) return true;
    } else {
      Reader patternRest = pattern;
      const char16_t wanted = patternRest.next();
      if (wanted == u'%') {
        if (patternRest.atEnd()) return true;
        seenPercent = true;
        pattern = patternBehindPercent = patternRest;
        textBehindPercent = text;
        continue;
      }
      if (text.atEnd()) return false;
      Reader textRest = text;
      const char16_t unit = textRest.next();
      if (wanted == u'_' || wanted == unit || foldCase(wanted) == foldCase(unit)) {
        pattern = patternRest;
        text = textRest;
        continue;
      }
    }
    if (!seenPercent || textBehindPercent.atEnd()) return false;
    textBehindPercent.next();
    text = textBehindPercent;
    pattern = patternBehindPercent;
  }
}

}  // namespace

bool like(std::u16string_view pattern, std::u16string_view text) {
  return likeUnits(Utf16Reader(pattern), Utf16Reader(text));
}

bool likeUtf8(std::string_view pattern, std::string_view text) {
  return likeUnits(Utf8Reader(pattern), Utf8Reader(text));
}

}  // namespace text
