#include "dictionary/source/substitutes.h"

#include <algorithm>
#include <cstddef>

#include "dictionary/source/characters.h"

namespace dictionary {
namespace {

/// A Cyrillic letter on its own is a substitute; next to another one it is a letter.
bool insideCyrillicWord(std::u16string_view text, std::size_t position) {
  return isCyrillic(text[position]) &&
         ((position > 0 && isCyrillic(text[position - 1])) ||
          (position + 1 < text.size() && isCyrillic(text[position + 1])));
}

Book bookOf(std::u16string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(u" \t"), line.size()));
  // "(data 的复数) [医] …": inflected forms repeat the line of their base after a note.
  if (line.starts_with(u'(')) line.remove_prefix(std::min(line.find(u'['), line.size()));
  if (line.starts_with(u"[医]")) return Book::kMedicine;
  return line.starts_with(u"[化]") ? Book::kChemistry : Book::kAny;
}

/// The substitute that begins at `at`; nullptr if there is none.
const Substitute* substituteAt(std::u16string_view line, std::size_t at, Book book) {
  const std::u16string_view rest = line.substr(at);
  for (const Substitute& substitute : substitutes()) {
    if (rest.starts_with(substitute.written) &&
        (substitute.book == Book::kAny || substitute.book == book)) {
      return &substitute;
    }
  }
  return nullptr;
}

bool mayHaveSubstitute(std::u16string_view line) {
  return std::ranges::any_of(line, [](char16_t unit) {
    return isForbidden(unit) || isSubstitute(unit) || isLatin1Letter(unit) || unit == 0x2609 ||
           unit == u'？';
  });
}

}  // namespace

std::u16string restoreSubstitutes(std::u16string_view line) {
  if (!mayHaveSubstitute(line)) return std::u16string(line);
  const Book book = bookOf(line);
  std::u16string restored;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const Substitute* const found =
        insideCyrillicWord(line, i) ? nullptr : substituteAt(line, i, book);
    if (found == nullptr) {
      restored += line[i];
    } else {
      restored += found->meant;
      i += found->written.size() - 1;
    }
  }
  return restored;
}

}  // namespace dictionary
