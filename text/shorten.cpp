#include "text/shorten.h"

namespace text {
namespace {

bool isHighSurrogate(char16_t unit) { return (unit & 0xFC00) == 0xD800; }
bool isLowSurrogate(char16_t unit) { return (unit & 0xFC00) == 0xDC00; }

}  // namespace

std::u16string shortened(std::u16string_view whole, std::size_t longest) {
  if (whole.size() <= longest) return std::u16string(whole);
  const std::size_t kept = longest - 1;
  std::u16string_view end = whole.substr(whole.size() - (kept / 2));
  std::u16string_view beginning = whole.substr(0, kept - end.size());
  if (isHighSurrogate(beginning.back())) beginning.remove_suffix(1);
  if (isLowSurrogate(end.front())) end.remove_prefix(1);
  std::u16string result(beginning);
  return result.append(u"…").append(end);
}

}  // namespace text
