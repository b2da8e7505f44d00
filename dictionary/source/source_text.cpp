#include "dictionary/source/source_text.h"

#include <algorithm>
#include <cstddef>

#include "dictionary/source/markup.h"
#include "dictionary/source/stand_ins.h"
#include "dictionary/translation/characters.h"

namespace dictionary {
namespace {

constexpr std::size_t kMaxHeadword = 64;

/// Begins a line that says where the others were taken from.
constexpr std::u16string_view kCitation = u"以上来源于";

bool isBlank(char16_t unit) {
  return unit == u' ' || unit == u'\t' || unit == 0xA0 || unit == 0x3000;
}

bool isInvisible(char16_t unit) {
  return (unit >= 0x200B && unit <= 0x200F) || unit == 0x2060 || unit == 0xFEFF || unit == 0xAD;
}

bool isHeadwordCharacter(char16_t unit) {
  constexpr std::u16string_view kUnsearchable = u"%_*\"\\";
  return unit >= 0x20 && unit < 0x7F && kUnsearchable.find(unit) == std::u16string_view::npos;
}

}  // namespace

std::u16string foldBlanks(std::u16string_view text) {
  std::u16string folded;
  for (const char16_t unit : text) {
    if (isInvisible(unit)) continue;
    if (!isBlank(unit)) {
      folded += unit;
    } else if (!folded.empty() && folded.back() != u' ') {
      folded += u' ';
    }
  }
  if (folded.ends_with(u' ')) folded.pop_back();
  return folded;
}

std::optional<std::u16string> headword(std::u16string_view word) {
  std::u16string folded = foldBlanks(word);
  const bool searchable = folded.size() <= kMaxHeadword && !folded.starts_with(u'?') &&
                          !hasMarkup(folded) && std::ranges::all_of(folded, isHeadwordCharacter) &&
                          std::ranges::any_of(folded, [](char16_t unit) {
                            return isAsciiLetter(unit) || isDigit(unit);
                          });
  if (!searchable) return std::nullopt;
  return folded;
}

std::vector<std::u16string> translationLines(std::u16string_view translation) {
  std::vector<std::u16string> lines;
  const std::u16string plain = breakLines(decodeEntities(translation));
  for (std::size_t begin = 0; begin <= plain.size();) {
    const std::size_t end = std::min(plain.find(u'\n', begin), plain.size());
    std::u16string line = foldBlanks(repairStandIns(plain.substr(begin, end - begin)));
    if (!line.empty() && !line.starts_with(kCitation)) lines.push_back(std::move(line));
    begin = end + 1;
  }
  return lines;
}

}  // namespace dictionary
