#include "dictionary/gloss/names/names.h"

#include <algorithm>

#include "dictionary/gloss/english.h"
#include "dictionary/gloss/word_list.h"
#include "dictionary/source/characters.h"

namespace dictionary {
namespace {

constexpr std::u16string_view kExclamations = u"oh|hey|well|no|yes|yeah|ah|aw|sorry|please|ok|";

/// A proper name does not begin with these, though its gloss has a comma.
constexpr std::u16string_view kSentenceBeginnings =
    u"If|When|OK|I|In|As|With|There|It|It's|Although|";

/// Abbreviations that end a text without ending a sentence.
constexpr std::u16string_view kAbbreviations = u"etc.|foll.|lit.|incl.|resp.|abbr.|";

/// What begins with these goes on after a comma: "in literature, the cue for a poem".
constexpr std::u16string_view kClauseBeginnings =
    u"in|at|on|for|by|with|as|when|if|after|before|of|from|once|no|while|since|like|";

/// Small words inside proper names.
constexpr std::u16string_view kInNames = u"of|the|and|or|de|von|for|van|der|da|del|am|al|bint|";

constexpr std::u16string_view kKindsOfPlace =
    u"county|district|city|township|town|prefecture|municipality|province|banner|island|islands|"
    u"village|subdistrict|nahiyisi|nahisi|shehiri|khoshuu|peninsula|river|region|lake|mountains|"
    u"airport|parish|"
    u"suburb|";

}  // namespace

std::u16string lowered(std::u16string_view word) {
  std::u16string result(word);
  if (!result.empty() && isCapital(result[0])) result[0] += u'a' - u'A';
  return result;
}

std::vector<std::u16string_view> partsBetweenCommas(std::u16string_view text) {
  std::vector<std::u16string_view> result;
  for (std::u16string_view rest = text; !rest.empty();) {
    const std::u16string_view part = rest.substr(0, rest.find(u", "));
    if (!part.empty()) result.push_back(part);
    rest.remove_prefix(std::min(rest.size(), part.size() + 2));
  }
  if (result.empty()) result.push_back(text);
  return result;
}

bool isSmallWordInNames(std::u16string_view word) { return isListed(kInNames, word); }

bool areCapitalized(std::u16string_view text) {
  while (!text.empty()) {
    const std::u16string_view word = firstWord(text);
    if (word.empty() || !isCapital(word[0])) return false;
    text.remove_prefix(std::min(text.size(), word.size() + 1));
  }
  return true;
}

bool isKindOfPlace(std::u16string_view word) { return isListed(kKindsOfPlace, lowered(word)); }

bool namesKindOfPlace(std::u16string_view name) {
  return isCapital(name[0]) && wordCount(name) > 1 && isKindOfPlace(lastWord(name));
}

bool isExclamation(std::u16string_view word) { return isListed(kExclamations, lowered(word)); }

bool beginsClause(std::u16string_view text) {
  return isListed(kClauseBeginnings, lowered(firstWord(text)));
}

bool endsAsSentence(std::u16string_view text) {
  if (text.ends_with(u'!')) return true;
  // Several sentences explain.
  if (text.find(u". ") != std::u16string_view::npos ||
      text.find(u": ") != std::u16string_view::npos)
    return false;
  const std::u16string_view word = lastWord(text);
  return word.ends_with(u'.') && word.size() > 2 && word[0] >= u'a' && word[0] <= u'z' &&
         word.find(u'.') == word.size() - 1 && !isListed(kAbbreviations, word);
}

bool areNameWords(std::u16string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const bool quoted = text[at] == u'"' && at + 1 < text.size();
    const std::u16string_view word = firstWord(text.substr(at + (quoted ? 1 : 0)));
    if (word.empty()) return false;
    const bool capital = isCapital(word[0]) || word.starts_with(u"al-") || word.starts_with(u"d'");
    if (!capital && !isDigit(word[0]) && !isListed(kInNames, word)) return false;
    at += word.size() + (quoted ? 2 : 1);
  }
  return true;
}

bool mayBeginName(std::u16string_view text) {
  return !isExclamation(firstWord(text)) && !isListed(kSentenceBeginnings, firstWord(text));
}

bool isName(std::u16string_view text) {
  if (!isCapital(text[0]) || !mayBeginName(text)) return false;
  if (wordCount(text) <= 2 || namesKindOfPlace(text)) return true;
  return areNameWords(text);
}

}  // namespace dictionary
