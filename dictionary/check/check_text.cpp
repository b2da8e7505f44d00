#include "dictionary/check/check_text.h"

#include <algorithm>

#include "dictionary/source/characters.h"
#include "dictionary/source/markup.h"

namespace dictionary {

void checkText(std::u16string_view text, const std::string& place, Findings& findings) {
  if (std::ranges::any_of(text, isForbidden)) findings.add(Rule::kCharacters, place);
  if (hasMarkup(text)) findings.add(Rule::kMarkup, place);
}

void checkSearchable(std::u16string_view word, const std::string& place, Findings& findings) {
  const bool disturbing = std::ranges::any_of(word, [](char16_t unit) {
    return unit == u'%' || unit == u'_' || (unit >= 0xD800 && unit <= 0xDFFF);
  });
  if (disturbing) findings.add(Rule::kSearchable, place);
}

}  // namespace dictionary
