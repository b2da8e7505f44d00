#include "text/pasted_text.h"

#include <algorithm>
#include <utility>

#include "text/characters.h"
#include "text/word_characters.h"
#include "text/word_ranges.h"

namespace text {
namespace {

/// Zero-width characters, directional marks and the byte order mark, which pages and documents
/// contain at any place.
bool isInvisible(char16_t unit) {
  return (unit >= 0x200B && unit <= 0x200F) || unit == 0x2060 || unit == 0xFEFF;
}

/// Blanks, quotation marks that do not come in pairs, and punctuation: what may be around a word,
/// brackets excepted. Spelled texts contain no other apostrophe than "'".
bool isMark(char16_t unit) {
  constexpr std::u16string_view kMarks = u" \"'.,;:!?¡¿«»‹›„‟‚…‥。、〝〞〟｡､";
  return kMarks.find(unit) != std::u16string_view::npos || isInvisible(unit);
}

std::u16string withSingleBlanks(std::u16string_view text) {
  std::u16string line;
  line.reserve(text.size());
  for (const char16_t unit : text) {
    const bool gap = isBlank(unit) || isLineEnd(unit);
    if (!gap) {
      line += unit;
    } else if (!line.empty() && line.back() != u' ') {
      line += u' ';
    }
  }
  return line;
}

/// Takes off what is around the word of a text, one unit after the other.
class Core {
 public:
  explicit Core(std::u16string_view text) : text_(text), range_{0, text.size()} {
    while (range_.size() > 0 && (takeMark() || takeBracket())) {
    }
    keepFinalStop();
  }
  [[nodiscard]] std::u16string_view text() const { return in(text_, range_); }

 private:
  [[nodiscard]] char16_t first() const { return text_[range_.begin]; }
  [[nodiscard]] char16_t last() const { return text_[range_.end - 1]; }
  [[nodiscard]] bool beginsWithStopOfName() const;
  bool takeMark();
  bool takeBracket();
  void keepFinalStop();

  std::u16string_view text_;
  Range range_;
};

/// The full stop of ".NET", but not the last one of an ellipsis.
bool Core::beginsWithStopOfName() const {
  const std::size_t begin = range_.begin;
  return first() == u'.' && range_.size() > 1 && unitKind(text_[begin + 1]) == UnitKind::kLetter &&
         (begin == 0 || text_[begin - 1] != u'.');
}

bool Core::takeMark() {
  if (isMark(first()) && !beginsWithStopOfName()) {
    ++range_.begin;
    return true;
  }
  if (!isMark(last())) return false;
  --range_.end;
  return true;
}

/// A pair around the whole, or a bracket without its partner. The partner is sought as far as a
/// word may reach, so that the time does not grow with the square of the length.
bool Core::takeBracket() {
  const std::size_t reach = std::min(range_.size(), kMaxReading);
  const Range head{range_.begin, range_.begin + reach};
  const Range tail{range_.end - reach, range_.end};
  const bool opens = isOpeningBracket(first());
  const auto closing = opens ? closingBracket(text_, head) : std::nullopt;
  const bool isPair = closing && *closing == range_.end - 1;
  const bool takesFirst = isPair || isClosingBracket(first()) || (opens && !closing);
  const bool takesLast = isPair || isOpeningBracket(last()) ||
                         (isClosingBracket(last()) && !takesFirst && !openingBracket(text_, tail));
  if (takesFirst) ++range_.begin;
  if (takesLast && range_.size() > 0) --range_.end;
  return takesFirst || takesLast;
}

/// The last full stop of "e.g." belongs to it, as to any word with a full stop in it; of a sentence
/// it does not.
void Core::keepFinalStop() {
  const std::u16string_view word = text();
  const bool follows = range_.end < text_.size() && text_[range_.end] == u'.';
  const bool isEllipsis = range_.end + 1 < text_.size() && text_[range_.end + 1] == u'.';
  if (!follows || isEllipsis || word.find(u' ') != std::u16string_view::npos) return;
  if (word.find(u'.', 1) != std::u16string_view::npos) ++range_.end;
}

std::u16string wordOf(std::u16string_view text) {
  const std::u16string line = withSingleBlanks(text);
  return std::u16string(Core(line).text());
}

bool isEnglish(std::u16string_view text) {
  return std::none_of(text.begin(), text.end(), isChinese);
}

}  // namespace

std::u16string pastedWord(std::u16string_view pasted, const IsHeadword& isHeadword) {
  const std::u16string text = spelled(pasted);
  std::u16string word = wordOf(text);
  if (word.empty()) return std::u16string(pasted);
  // Combining marks may stand between blanks, so that taking them off comes first.
  std::u16string plain = wordOf(withoutAccents(text));
  if (plain.empty() || plain == word || !isEnglish(plain)) return word;
  Readings readings;
  if (isEnglish(word)) readings.candidates.push_back({word, 0, word.size()});
  readings.otherwise = Reading{std::move(plain), 0, word.size()};
  return chooseReading(readings, isHeadword)->word;
}

}  // namespace text
