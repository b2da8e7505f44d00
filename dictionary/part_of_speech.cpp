#include "dictionary/part_of_speech.h"

#include <algorithm>
#include <array>

#include "dictionary/brackets.h"
#include "dictionary/characters.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

constexpr std::array kMarks = {
    u"n"sv,     u"a"sv,    u"v"sv,     u"vt"sv,  u"vi"sv,     u"adj"sv,  u"adv"sv,    u"ad"sv,
    u"abbr"sv,  u"un"sv,   u"na"sv,    u"int"sv, u"interj"sv, u"pl"sv,   u"pref"sv,   u"prep"sv,
    u"pron"sv,  u"num"sv,  u"conj"sv,  u"vbl"sv, u"suf"sv,    u"suff"sv, u"comb"sv,   u"aux"sv,
    u"pla"sv,   u"st"sv,   u"pp"sv,    u"phr"sv, u"ph"sv,     u"art"sv,  u"exclam"sv, u"ind"sv,
    u"quant"sv, u"pn"sv,   u"tim"sv,   u"adl"sv, u"ing"sv,    u"pers"sv, u"col"sv,    u"sing"sv,
    u"symb"sv,  u"pren"sv, u"stuff"sv,
};

/// Marks that occur without their full stop.
constexpr std::array kBareMarks = {u"n"sv, u"v"sv, u"a"sv, u"vt"sv, u"vi"sv, u"adj"sv, u"adv"sv};

std::size_t blanksAt(std::u16string_view text, std::size_t position) {
  std::size_t length = 0;
  while (position + length < text.size() && text[position + length] == u' ') ++length;
  return length;
}

bool beginsChinese(std::u16string_view text) {
  return !text.empty() && (isHan(text[0]) || openingBracket(text[0]) != Bracket::kNone ||
                           text[0] == u'…' || text[0] == u'“' || text[0] == u'《');
}

/// Whether a note and then the mark's full stop follow: "n<古>.", "a[生化].".
bool isNoteThenStop(std::u16string_view text) {
  if (text.empty() || openingBracket(text[0]) == Bracket::kNone) return false;
  const std::size_t close = closingPosition(text, 0);
  return close != std::u16string_view::npos && text.substr(close + 1).starts_with(u'.');
}

/// Length of one mark without what links it to the next.
std::size_t markLength(std::u16string_view text) {
  std::size_t letters = 0;
  while (letters < text.size() && isAsciiLetter(text[letters])) ++letters;
  const std::u16string_view mark = text.substr(0, letters);
  if (mark.empty() || letters == text.size()) return 0;
  if (text[letters] == u'.' || text[letters] == u'．') {
    return std::ranges::find(kMarks, mark) == kMarks.end() ? 0 : letters + 1;
  }
  if (std::ranges::find(kBareMarks, mark) == kBareMarks.end()) return 0;
  const std::size_t blanks = blanksAt(text, letters);
  const bool bare = (blanks > 0 && beginsChinese(text.substr(letters + blanks))) ||
                    isNoteThenStop(text.substr(letters));
  return bare ? letters : 0;
}

}  // namespace

std::size_t partOfSpeechLength(std::u16string_view text) {
  std::size_t length = 0;
  for (std::size_t next = 0;;) {
    const std::size_t mark = markLength(text.substr(next));
    if (mark == 0) return length;
    next += mark;
    next += blanksAt(text, next);
    length = next;
    constexpr std::u16string_view kLinks = u"&,/，、";
    while (next < text.size() && kLinks.find(text[next]) != std::u16string_view::npos) {
      ++next;
      next += blanksAt(text, next);
    }
    if (next != length && markLength(text.substr(next)) == 0 && text[length] == u'&') {
      return next;
    }
  }
}

}  // namespace dictionary
