// A range is found by extending it from the index to both sides, and given up once it is too long.
// A word is letters with joints between them; a joint is a hyphen or an apostrophe. A run is all
// that headwords are made of, from one blank or quotation mark to the next; the punctuation around
// it is taken off afterwards, since only the whole run tells a bracket around a word from one in
// it. Where a line's end follows a word's hyphen, or precedes the word, the other part of the
// divided word is sought across it.

#include "text/word_ranges.h"

#include <algorithm>

#include "text/word_characters.h"

namespace text {
namespace {

/// At index 0, `index - 1` wraps to SIZE_MAX, which is past the end as well; all below rely on it.
UnitKind kindAt(std::u16string_view text, std::size_t index) {
  return index < text.size() ? unitKind(text[index]) : UnitKind::kBreak;
}

char16_t unitAt(std::u16string_view text, std::size_t index) {
  return index < text.size() ? narrow(text[index]) : u'\0';
}

bool isLetterAt(std::u16string_view text, std::size_t index) {
  return kindAt(text, index) == UnitKind::kLetter;
}

bool isHyphenAt(std::u16string_view text, std::size_t index) {
  return kindAt(text, index) == UnitKind::kHyphen;
}

bool isWordUnit(std::u16string_view text, std::size_t index) {
  if (isLetterAt(text, index)) return true;
  const bool isJoint = isHyphenAt(text, index) || kindAt(text, index) == UnitKind::kApostrophe;
  return isJoint && isLetterAt(text, index - 1) && isLetterAt(text, index + 1);
}

/// A hyphen or a full stop beside its like is a dash or an ellipsis.
bool isDoubled(std::u16string_view text, std::size_t index) {
  if (isHyphenAt(text, index)) return isHyphenAt(text, index - 1) || isHyphenAt(text, index + 1);
  return unitAt(text, index) == u'.' &&
         (unitAt(text, index - 1) == u'.' || unitAt(text, index + 1) == u'.');
}

bool isRunUnit(std::u16string_view text, std::size_t index) {
  const UnitKind kind = kindAt(text, index);
  return kind != UnitKind::kBreak && kind != UnitKind::kHan && !isDoubled(text, index);
}

bool isHanUnit(std::u16string_view text, std::size_t index) {
  return kindAt(text, index) == UnitKind::kHan;
}

/// Extends a range from `index` to both sides while the units belong to it.
template <class Belongs>
std::optional<Range> extend(std::u16string_view text, std::size_t index, Belongs belongs) {
  if (index >= text.size() || !belongs(text, index)) return std::nullopt;
  Range range{index, index + 1};
  while (range.size() <= kMaxReading && belongs(text, range.begin - 1)) --range.begin;
  while (range.size() <= kMaxReading && belongs(text, range.end)) ++range.end;
  if (range.size() > kMaxReading) return std::nullopt;
  return range;
}

bool isLetterOrDigitAt(std::u16string_view text, std::size_t index) {
  const UnitKind kind = kindAt(text, index);
  return kind == UnitKind::kLetter || kind == UnitKind::kDigit;
}

/// Returns whether the bracket at the beginning of `range` is closed before a letter: it belongs to
/// a name such as "(chloro)ethane".
bool opensInside(std::u16string_view text, Range range) {
  const auto closing = closingBracket(text, range);
  return closing && isLetterAt(text, *closing + 1);
}

/// Returns whether `range` begins with a part of its word: with a letter, a digit, the full stop of
/// ".NET", or a bracket that is closed inside.
bool beginsWithWord(std::u16string_view text, Range range) {
  if (isLetterOrDigitAt(text, range.begin)) return true;
  const char16_t unit = unitAt(text, range.begin);
  if (unit == u'.') return isLetterAt(text, range.begin + 1);
  return isOpeningBracket(unit) && opensInside(text, range);
}

/// Returns whether `range` ends with a part of its word: with a letter, a digit, the signs of "C++"
/// and "C#", or a bracket that is opened inside.
bool endsWithWord(std::u16string_view text, Range range) {
  const std::size_t last = range.end - 1;
  if (isLetterOrDigitAt(text, last)) return true;
  const char16_t unit = unitAt(text, last);
  if (unit == u'#') return isLetterAt(text, last - 1);
  if (unit == u'+') return isLetterAt(text, last - 1) || unitAt(text, last - 1) == u'+';
  // As in "chiral(ity)".
  return isClosingBracket(unit) && openingBracket(text, range).has_value();
}

bool isGapUnit(char16_t unit) { return isBlank(unit) || isLineEnd(unit); }

/// Returns whether `gap` is one line end with blanks around it. CR LF is one, and so is CR CR LF,
/// by which edit controls mark where they wrap a line. Two are the end of a paragraph.
bool isOneLineEnd(std::u16string_view gap) {
  const auto* const first = std::find_if(gap.begin(), gap.end(), isLineEnd);
  const auto* const last = std::find_if_not(first, gap.end(), isLineEnd);
  if (std::any_of(last, gap.end(), isLineEnd)) return false;
  const std::u16string_view lineEnd(first, last);
  return lineEnd.size() == 1 || lineEnd == u"\r\n" || lineEnd == u"\r\r\n";
}

/// Returns the division after `left`. The hyphen is the one after the word, or the soft hyphen that
/// it ends with.
std::optional<Division> divisionAfter(std::u16string_view text, Range left) {
  const bool isSoft = unitAt(text, left.end - 1) == kSoftHyphen;
  const bool isHard = isHyphenAt(text, left.end);
  if (!isSoft && !isHard) return std::nullopt;
  const std::size_t begin = left.end + (isHard ? 1 : 0);
  std::size_t end = begin;
  while (end < text.size() && end - begin < kMaxGap && isGapUnit(text[end])) ++end;
  if (!isOneLineEnd(in(text, {begin, end})) || !isLetterAt(text, end)) return std::nullopt;
  const auto right = wordAt(text, end);
  if (!right) return std::nullopt;
  return Division{left, *right};
}

/// Returns the division before `right`. Only the left part is sought here, so that both parts have
/// the same division.
std::optional<Division> divisionBefore(std::u16string_view text, Range right) {
  std::size_t begin = right.begin;
  while (begin > 0 && right.begin - begin < kMaxGap && isGapUnit(text[begin - 1])) --begin;
  if (begin == right.begin) return std::nullopt;
  const auto left = wordAt(text, begin - 2);  // before the hyphen
  if (!left) return std::nullopt;
  const auto division = divisionAfter(text, *left);
  if (!division || !(division->right == right)) return std::nullopt;
  return division;
}

}  // namespace

std::optional<Range> wordAt(std::u16string_view text, std::size_t index) {
  return extend(text, index, isWordUnit);
}

std::optional<Range> hanRunAt(std::u16string_view text, std::size_t index) {
  return extend(text, index, isHanUnit);
}

std::optional<Run> runAt(std::u16string_view text, std::size_t index) {
  const auto untrimmed = extend(text, index, isRunUnit);
  if (!untrimmed) return std::nullopt;
  Range range = *untrimmed;
  while (range.size() > 0 && !beginsWithWord(text, range)) ++range.begin;
  while (range.size() > 0 && !endsWithWord(text, range)) --range.end;
  const bool stopFollows = range.end < untrimmed->end && unitAt(text, range.end) == u'.';
  const std::size_t end = range.end + (stopFollows ? 1 : 0);
  if (range.size() == 0 || index < range.begin || index >= end) return std::nullopt;
  const std::u16string_view tail = in(text, {range.begin + 1, range.end});
  return Run{range, stopFollows, std::any_of(tail.begin(), tail.end(), [](char16_t unit) {
               return narrow(unit) == u'.';
             })};
}

std::optional<std::size_t> closingBracket(std::u16string_view text, Range range) {
  int depth = 0;
  for (std::size_t i = range.begin; i < range.end; ++i) {
    if (isOpeningBracket(unitAt(text, i))) ++depth;
    if (isClosingBracket(unitAt(text, i)) && --depth == 0) return i;
  }
  return std::nullopt;
}

std::optional<std::size_t> openingBracket(std::u16string_view text, Range range) {
  int depth = 0;
  for (std::size_t i = range.end; i > range.begin; --i) {
    if (isClosingBracket(unitAt(text, i - 1))) ++depth;
    if (isOpeningBracket(unitAt(text, i - 1)) && --depth == 0) return i - 1;
  }
  return std::nullopt;
}

std::optional<Range> partAt(std::u16string_view text, Range range, std::size_t index) {
  if (isHyphenAt(text, index)) return std::nullopt;
  Range part{index, index + 1};
  while (part.begin > range.begin && !isHyphenAt(text, part.begin - 1)) --part.begin;
  while (part.end < range.end && !isHyphenAt(text, part.end)) ++part.end;
  return part;
}

bool touchesDigit(std::u16string_view text, Range range) {
  const bool afterApostrophe = kindAt(text, range.begin - 1) == UnitKind::kApostrophe;
  return kindAt(text, range.begin - (afterApostrophe ? 2 : 1)) == UnitKind::kDigit ||
         kindAt(text, range.end) == UnitKind::kDigit;
}

std::optional<Division> divisionAt(std::u16string_view text, Range word) {
  auto division = divisionAfter(text, word);
  if (!division) division = divisionBefore(text, word);
  if (!division || touchesDigit(text, division->left) || touchesDigit(text, division->right)) {
    return std::nullopt;
  }
  return division;
}

}  // namespace text
