#include "text/query_text.h"

#include <algorithm>
#include <utility>

#include "text/characters.h"
#include "text/strings.h"

namespace user {
namespace {

/// Characters that English input may not begin with. Chinese input may: its lookup is by range, and
/// such a character is an ordinary one there.
constexpr std::u16string_view kWildcards = u"*_?%";

}  // namespace

std::u16string& escapeQuote(std::u16string& text) {
  constexpr char16_t kQuote = u'\'';
  std::u16string escaped;
  escaped.reserve(text.size());
  for (const char16_t unit : text) {
    escaped.append(unit == kQuote ? 2 : 1, unit);
  }
  text = std::move(escaped);
  return text;
}

std::u16string_view getEorC(std::u16string_view text) {
  return std::any_of(text.begin(), text.end(), text::isChinese) ? kChinese : kEnglish;
}

TypedText readTyped(std::u16string_view text) {
  TypedText typed;
  std::u16string word(text::trimBlanks(text));
  if (word.empty()) return typed;
  // A quote has no influence on the language class, so that the word may be escaped before.
  typed.language = getEorC(escapeQuote(word));
  if (typed.language == kEnglish && kWildcards.find(word.front()) != std::u16string_view::npos) {
    typed.kind = Typed::kRefused;
    return typed;
  }
  typed.kind = Typed::kWord;
  typed.word = std::move(word);
  return typed;
}

// Deliberate: the caller's variable gets the first replacement only.
std::u16string convertWildcard(std::u16string& text) {
  text = replaceStr(text, u"?", u"_");
  return replaceStr(text, u"*", u"%");
}

// Required is a search from the beginning of the text after each replacement. For the contract's
// single characters that is quadratic and finds nothing new before the match, so that the search
// continues from there; it starts a little before, where a longer `search` may find a match that
// the replacement made.
std::u16string replaceStr(std::u16string_view source, std::u16string_view search,
                          std::u16string_view replacement) {
  std::u16string text(source);
  if (search.empty()) {
    return text;
  }
  std::size_t match = text.find(search);
  while (match != std::u16string::npos) {
    text.replace(match, 1, replacement);
    // A match that ended before this one would have been found first.
    const std::size_t overlap = std::min(match, search.size() - 1);
    match = text.find(search, match - overlap);
  }
  return text;
}

std::size_t displayLength(std::u16string_view text) {
  return getEorC(text) == kChinese ? 2 * text.size() : text.size();
}

std::u16string padWord(std::u16string_view text, std::int16_t width) {
  const std::size_t length = displayLength(text);
  // Widths are 16-bit settings of the windows; a negative one counts as none.
  const std::size_t columns = width > 0 ? static_cast<std::size_t>(width) : 0;
  std::u16string padded(text);
  padded.append(length >= columns ? 2 : columns - length, u' ');
  return padded;
}

}  // namespace user
