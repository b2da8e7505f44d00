#include "capture/nhw32/word_text.h"

#include "text/characters.h"

// Each code unit is of one kind. A word is a maximal run of Latin letters, or of Han characters; a
// hyphen or apostrophe (a joint) belongs to a Latin word only between two of its letters, so that
// quotes and dashes around a word are left out. The run is extended from the character under the
// point to both sides and given up once it is too long, so that the cost does not depend on the
// length of the text.
namespace nhw32 {
namespace {

enum class Kind { kOther, kLatin, kHan, kJoint };

bool within(char16_t unit, char16_t first, char16_t last) { return unit >= first && unit <= last; }

/// U+2010 and U+2011 are typographic hyphens, U+2019 the typographic apostrophe.
bool isJoint(char16_t unit) {
  return unit == u'-' || unit == u'\'' || unit == u'\u2010' || unit == u'\u2011' ||
         unit == u'\u2019';
}

/// Basic Latin, Latin-1 without its two operators, Latin Extended-A, -B and Additional, and the
/// combining diacritical marks (U+0300 to U+036F), of which decomposed letters have one or more.
bool isLatin(char16_t unit) {
  return within(unit, u'A', u'Z') || within(unit, u'a', u'z') ||
         (within(unit, u'\u00C0', u'\u024F') && unit != u'\u00D7' && unit != u'\u00F7') ||
         within(unit, u'\u1E00', u'\u1EFF') || within(unit, u'\u0300', u'\u036F');
}

Kind kindOf(char16_t unit) {
  if (isJoint(unit)) return Kind::kJoint;
  if (isLatin(unit)) return Kind::kLatin;
  return text::isHan(unit) ? Kind::kHan : Kind::kOther;
}

Kind kindAt(std::u16string_view text, std::size_t index) {
  return index < text.size() ? kindOf(text[index]) : Kind::kOther;
}

/// Returns whether the character at `index` belongs to a word of Latin letters. At index 0,
/// `index - 1` wraps to SIZE_MAX, which kindAt treats as past the end; runAround relies on it too.
bool inLatinWord(std::u16string_view text, std::size_t index) {
  const Kind kind = kindAt(text, index);
  return kind == Kind::kLatin || (kind == Kind::kJoint && kindAt(text, index - 1) == Kind::kLatin &&
                                  kindAt(text, index + 1) == Kind::kLatin);
}

bool inHanWord(std::u16string_view text, std::size_t index) {
  return kindAt(text, index) == Kind::kHan;
}

/// Extends a range from `index` in both directions while the characters belong to the word.
template <class Belongs>
std::optional<Range> runAround(std::u16string_view text, std::size_t index, Belongs belongs) {
  Range run{index, index + 1};
  while (run.end - run.begin <= kMaxWord && belongs(text, run.begin - 1)) --run.begin;
  while (run.end - run.begin <= kMaxWord && belongs(text, run.end)) ++run.end;
  if (run.end - run.begin > kMaxWord) return std::nullopt;
  return run;
}

bool isSurrogatePair(std::u16string_view text) {
  return text.size() >= 2 && within(text[0], u'\xD800', u'\xDBFF') &&
         within(text[1], u'\xDC00', u'\xDFFF');
}

/// The code page may lack the typographic characters, and dictionaries spell words with the plain
/// ones.
std::u16string_view withPlainPunctuation(std::u16string_view character) {
  if (character == u"\u2019") return u"'";
  if (character == u"\u2010" || character == u"\u2011") return u"-";
  return character;
}

}  // namespace

std::optional<Range> wordAt(std::u16string_view text, std::size_t index) {
  if (inLatinWord(text, index)) return runAround(text, index, inLatinWord);
  if (inHanWord(text, index)) return runAround(text, index, inHanWord);
  return std::nullopt;
}

std::string ansiWord(std::u16string_view word, std::size_t capacity,
                     const CharacterToBytes& toBytes) {
  std::string bytes;
  while (!word.empty()) {
    const std::size_t units = isSurrogatePair(word) ? 2 : 1;
    const auto character = toBytes(withPlainPunctuation(word.substr(0, units)));
    if (!character) return {};
    if (bytes.size() + character->size() > capacity) break;
    bytes += *character;
    word.remove_prefix(units);
  }
  return bytes;
}

}  // namespace nhw32
