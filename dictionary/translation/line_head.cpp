#include "dictionary/translation/line_head.h"

#include <algorithm>

#include "dictionary/translation/brackets.h"
#include "dictionary/translation/part_of_speech.h"
#include "text/trim.h"

namespace dictionary {
namespace {

/// Subjects whose lines use one-character brackets for optional characters, not for tags.
constexpr SubjectSet kNoShortTagsAfter = setOf(Subject::kMedicine) | setOf(Subject::kComputing);

/// Length of the stray characters before a part-of-speech mark that can be skipped: "& ", a numeral
/// of a sense ("Ⅰ ", in the source also "l "), and after a note the full stop of "n<古>.".
std::size_t strayLength(std::u16string_view text, bool afterNote) {
  if (afterNote && text.starts_with(u'.')) return 1;
  for (const std::u16string_view numeral : {u"l ", u"ll "}) {
    if (text.starts_with(numeral) && partOfSpeechLength(text.substr(numeral.size())) > 0) {
      return numeral.size();
    }
  }
  constexpr std::u16string_view kStray = u"&.ⅠⅡⅢⅣ";
  std::size_t length = 0;
  while (length < text.size() &&
         (kStray.find(text[length]) != std::u16string_view::npos || text[length] == u' ')) {
    ++length;
  }
  return partOfSpeechLength(text.substr(length)) > 0 ? length : 0;
}

}  // namespace

LineHead readHead(std::u16string_view text, bool shortTags) {
  LineHead head;
  std::size_t position = 0;
  bool afterNote = false;
  for (;;) {
    while (position < text.size() && text[position] == u' ') ++position;
    head.length = position;
    if (position == text.size()) return head;
    const std::u16string_view rest = text.substr(position);
    const std::size_t skipped = std::max(partOfSpeechLength(rest), strayLength(rest, afterNote));
    if (skipped > 0) {
      position += skipped;
      head.abbreviation = head.abbreviation || rest.starts_with(u"abbr");
      continue;
    }
    const Bracket kind = openingBracket(text[position]);
    if (kind == Bracket::kNone) return head;
    const std::size_t close = closingPosition(text, position);
    if (close == std::u16string_view::npos) return head;

    const std::u16string_view tag =
        user::trimBlanks(text.substr(position + 1, close - position - 1));
    const bool mayBeTag = kind == Bracket::kSquare && (shortTags || tag.size() > 1) &&
                          (tag.size() > 1 || (head.subjects & kNoShortTagsAfter) == 0);
    const SubjectSet subjects = mayBeTag ? subjectsOfTag(tag) : 0;
    if (subjects == 0) head.notes += text.substr(position, close + 1 - position);
    head.subjects |= subjects;
    position = close + 1;
    afterNote = true;
  }
}

}  // namespace dictionary
