// The order matters: entity codes are decoded first, since they may spell a blank or a bracket;
// titles are marked before tags are deleted, since "<<OED>>" contains one; then lines are broken,
// since they are cleaned one by one; then substitutes are restored, and blanks folded last, since
// deleting a substitute may leave two blanks together.

#include "dictionary/source/cleanup.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "dictionary/source/characters.h"
#include "dictionary/source/markup.h"
#include "dictionary/source/substitutes.h"

namespace dictionary {
namespace {

/// In characters. Longer words are sentences, which nobody looks up as a headword.
constexpr std::size_t kMaxHeadword = 64;

/// Beginning of a line that names the source of the others.
constexpr std::u16string_view kCitation = u"以上来源于";

bool isBlank(char16_t unit) {
  return unit == u' ' || unit == u'\t' || unit == 0xA0 || unit == 0x3000;
}

/// Zero-width characters and direction marks, word joiner, byte order mark, soft hyphen: the source
/// has them inside words, which would never be found.
bool isInvisible(char16_t unit) {
  return (unit >= 0x200B && unit <= 0x200F) || unit == 0x2060 || unit == 0xFEFF || unit == 0xAD;
}

/// Printable ASCII, without what the windows' input or SQL treats as a wildcard, quote or escape.
/// "?" is allowed inside a word: it is a wildcard of searches only, which match it as well.
bool isHeadwordCharacter(char16_t unit) {
  constexpr std::u16string_view kUnsearchable = u"%_*\"\\";
  return unit >= 0x20 && unit < 0x7F && kUnsearchable.find(unit) == std::u16string_view::npos;
}

/// Joins the halves of a word that was broken at a hyphen and a comma: "国际计算机-, 有限公司". A
/// comma after a hyphen joins nothing else in Chinese text.
std::u16string withoutBreaks(std::u16string_view line) {
  constexpr std::u16string_view kBreak = u"-, ";
  std::u16string joined;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const std::size_t next = i + kBreak.size();
    const bool broken = i > 0 && line.substr(i).starts_with(kBreak) && next < line.size() &&
                        isHan(line[i - 1]) && isHan(line[next]);
    if (broken) i = next;
    joined += line[i];
  }
  return joined;
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
  const std::u16string plain = breakLines(markTitles(decodeEntities(translation)));
  for (std::size_t begin = 0; begin <= plain.size();) {
    const std::size_t end = std::min(plain.find(u'\n', begin), plain.size());
    std::u16string line =
        withoutBreaks(foldBlanks(restoreSubstitutes(plain.substr(begin, end - begin))));
    if (!line.empty() && !line.starts_with(kCitation)) lines.push_back(std::move(line));
    begin = end + 1;
  }
  return lines;
}

}  // namespace dictionary
