/// LIKE. Input: a line with the pattern, then the text; both in UTF-8, valid or not.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tests/fuzz/fuzz_input.h"
#include "text/like.h"
#include "text/order.h"
#include "text/utf.h"

namespace {

/// LIKE by a table of what each start of the pattern matches: slow but plain.
bool likeByTable(std::u16string_view pattern, std::u16string_view text) {
  std::vector<bool> matches(text.size() + 1);  // of each start of the text
  matches[0] = true;
  for (const char16_t wanted : pattern) {
    std::vector<bool> next(text.size() + 1);
    next[0] = wanted == u'%' && matches[0];
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (wanted == u'%') {
        next[i + 1] = matches[i + 1] || next[i];
      } else if (wanted == u'_' || text::foldCase(wanted) == text::foldCase(text[i])) {
        next[i + 1] = matches[i];
      }
    }
    matches = next;
  }
  return matches[text.size()];
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  const std::string_view pattern = input.line();
  const std::string_view text = input.rest();
  const std::u16string patternUnits = text::toUtf16(pattern);
  const std::u16string textUnits = text::toUtf16(text);
  const bool found = text::likeUtf8(pattern, text);
  require(found == text::like(patternUnits, textUnits));
  require(found == text::LikePattern(pattern).matches(text));
  constexpr std::size_t kQuick = 1 << 18;
  if (pattern.size() * text.size() <= kQuick) {
    require(found == likeByTable(patternUnits, textUnits));
  }
  return 0;
}
