#include "text/typed_text.h"

#include "text/query_text.h"
#include "text/trim.h"

namespace user {
namespace {

/// What English input may not begin with.
constexpr std::u16string_view kWildcards = u"*_?%";

}  // namespace

TypedText readTyped(std::u16string_view text) {
  TypedText typed;
  std::u16string word(trimBlanks(text));
  if (word.empty()) return typed;
  typed.language = getEorC(escapeQuote(word));
  if (typed.language == kEnglish && kWildcards.find(word.front()) != std::u16string_view::npos) {
    typed.kind = Typed::kRefused;
    return typed;
  }
  typed.kind = Typed::kWord;
  typed.word = std::move(word);
  return typed;
}

std::u16string_view firstLine(std::u16string_view text) {
  for (;;) {
    const std::size_t end = text.find_first_of(u"\r\n");
    const std::u16string_view line = text.substr(0, end);
    if (end == std::u16string_view::npos || !trimBlanks(line).empty()) return line;
    text.remove_prefix(end + 1);
  }
}

}  // namespace user
