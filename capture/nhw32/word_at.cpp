#include "capture/nhw32/word_at.h"

#include "text/characters.h"

namespace nhw32 {
namespace {

enum class Kind { other, latin, han, joint };

bool within(char16_t unit, char16_t first, char16_t last) { return unit >= first && unit <= last; }

/// U+2010 and U+2011 are the hyphens that word processors set; U+2019 is their apostrophe.
bool isJoint(char16_t unit) {
  return unit == u'-' || unit == u'\'' || unit == u'\u2010' || unit == u'\u2011' ||
         unit == u'\u2019';
}

/// Basic Latin, Latin-1 without its two operators, Latin Extended-A, -B and Additional, and the
/// combining marks that a letter's accents may come as.
bool isLatin(char16_t unit) {
  return within(unit, u'A', u'Z') || within(unit, u'a', u'z') ||
         (within(unit, u'\u00C0', u'\u024F') && unit != u'\u00D7' && unit != u'\u00F7') ||
         within(unit, u'\u1E00', u'\u1EFF') || within(unit, u'\u0300', u'\u036F');
}

Kind kindOf(char16_t unit) {
  if (isJoint(unit)) return Kind::joint;
  if (isLatin(unit)) return Kind::latin;
  return text::isHan(unit) ? Kind::han : Kind::other;
}

Kind kindAt(std::u16string_view text, std::size_t index) {
  return index < text.size() ? kindOf(text[index]) : Kind::other;
}

/// Whether the character at `index` belongs to a word of Latin letters. Before the text's first
/// character lies one whose index is the greatest number, behind the end like all others.
bool inLatinWord(std::u16string_view text, std::size_t index) {
  const Kind kind = kindAt(text, index);
  return kind == Kind::latin || (kind == Kind::joint && kindAt(text, index - 1) == Kind::latin &&
                                 kindAt(text, index + 1) == Kind::latin);
}

bool inHanWord(std::u16string_view text, std::size_t index) {
  return kindAt(text, index) == Kind::han;
}

template <class Belongs>
std::optional<Range> runAround(std::u16string_view text, std::size_t index, Belongs belongs) {
  Range run{index, index + 1};
  while (run.end - run.begin <= kLongestWord && belongs(text, run.begin - 1)) --run.begin;
  while (run.end - run.begin <= kLongestWord && belongs(text, run.end)) ++run.end;
  if (run.end - run.begin > kLongestWord) return std::nullopt;
  return run;
}

}  // namespace

std::optional<Range> wordAt(std::u16string_view text, std::size_t index) {
  if (inLatinWord(text, index)) return runAround(text, index, inLatinWord);
  if (inHanWord(text, index)) return runAround(text, index, inHanWord);
  return std::nullopt;
}

}  // namespace nhw32
