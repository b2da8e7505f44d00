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

}  // namespace user
