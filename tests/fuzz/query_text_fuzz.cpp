/// The query text rules, on any UTF-16 text. Input: a width, as one byte; then the text in UTF-8.

#include "text/query_text.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "tests/fuzz/fuzz_input.h"
#include "text/utf.h"

namespace {

void checkEscaping(const std::u16string& text) {
  std::u16string escaped = text;
  require(&user::escapeQuote(escaped) == &escaped);
  const auto quotes = std::count(text.begin(), text.end(), u'\'');
  require(escaped.size() == text.size() + static_cast<std::size_t>(quotes));
  std::u16string readBack;
  for (std::size_t i = 0; i < escaped.size(); ++i) {
    readBack += escaped[i];
    if (escaped[i] == u'\'') {
      ++i;
      require(i < escaped.size() && escaped[i] == u'\'');
    }
  }
  require(readBack == text);
}

void checkWildcards(const std::u16string& text) {
  std::u16string variable = text;
  const std::u16string converted = user::convertWildcard(variable);
  std::u16string expected = text;
  std::replace(expected.begin(), expected.end(), u'?', u'_');
  require(variable == expected);
  std::replace(expected.begin(), expected.end(), u'*', u'%');
  require(converted == expected);
}

void checkReplacing(const std::u16string& text, char16_t search, std::u16string_view replacement) {
  if (replacement.find(search) != std::u16string_view::npos) {
    return;
  }
  std::u16string expected;
  for (const char16_t unit : text) {
    if (unit == search) {
      expected += replacement;
    } else {
      expected += unit;
    }
  }
  require(user::replaceStr(text, {&search, 1}, replacement) == expected);
}

void checkPadding(const std::u16string& text, std::int16_t width) {
  const bool chinese = user::getEorC(text) == user::kChinese;
  require(chinese == std::any_of(text.begin(), text.end(), [](char16_t c) { return c > 255; }));
  const std::size_t columns = chinese ? 2 * text.size() : text.size();
  const std::u16string padded = user::padWord(text, width);
  const std::size_t blanks = padded.size() - text.size();
  require(padded == text + std::u16string(blanks, u' '));
  const bool fits = width > 0 && columns < static_cast<std::size_t>(width);
  require(fits ? columns + blanks == static_cast<std::size_t>(width) : blanks == 2);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) {
    return 0;
  }
  const auto width = static_cast<std::int16_t>(data[0] * 3 - 100);
  const std::u16string text = text::toUtf16(FuzzInput(data + 1, size - 1).rest());
  checkEscaping(text);
  checkWildcards(text);
  checkPadding(text, width);
  if (!text.empty()) {
    checkReplacing(text, text.back(), std::u16string_view(text).substr(0, data[0] % 4U));
  }
  return 0;
}
