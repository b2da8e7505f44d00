#include "dictionary/translation/part_of_speech.h"

#include <algorithm>
#include <array>

#include "dictionary/source/characters.h"
#include "dictionary/translation/brackets.h"
#include "text/strings.h"

namespace dictionary {
namespace {

using namespace std::string_view_literals;

/// Every mark that occurs in the source, without its full stop.
constexpr std::array kMarks = {
    u"n"sv,     u"a"sv,    u"v"sv,     u"vt"sv,  u"vi"sv,     u"adj"sv,  u"adv"sv,    u"ad"sv,
    u"abbr"sv,  u"un"sv,   u"na"sv,    u"int"sv, u"interj"sv, u"pl"sv,   u"pref"sv,   u"prep"sv,
    u"pron"sv,  u"num"sv,  u"conj"sv,  u"vbl"sv, u"suf"sv,    u"suff"sv, u"comb"sv,   u"aux"sv,
    u"pla"sv,   u"st"sv,   u"pp"sv,    u"phr"sv, u"ph"sv,     u"art"sv,  u"exclam"sv, u"ind"sv,
    u"quant"sv, u"pn"sv,   u"tim"sv,   u"adl"sv, u"ing"sv,    u"pers"sv, u"col"sv,    u"sing"sv,
    u"symb"sv,  u"pren"sv, u"stuff"sv,
};

/// Marks that also occur without their full stop, where they might be words or symbols:
/// markLength() asks for more of them.
constexpr std::array kBareMarks = {u"n"sv, u"v"sv, u"a"sv, u"vt"sv, u"vi"sv, u"adj"sv, u"adv"sv};

/// Characters between the marks of one sense: "vt. & vi.".
constexpr std::u16string_view kLinks = u"&,/，、";

/// What the marks mean; "aux." is a verb and a function word.
struct MarkMeaning {
  std::u16string_view mark;
  PartOfSpeechSet parts;
};

constexpr PartOfSpeechSet kNoun = setOf(PartOfSpeech::kNoun);
constexpr PartOfSpeechSet kVerb = setOf(PartOfSpeech::kVerb);
constexpr PartOfSpeechSet kAdjective = setOf(PartOfSpeech::kAdjective);
constexpr PartOfSpeechSet kAdverb = setOf(PartOfSpeech::kAdverb);
constexpr PartOfSpeechSet kFunction = setOf(PartOfSpeech::kFunction);

constexpr std::array<MarkMeaning, 24> kMeanings = {{
    {u"n", kNoun},          {u"un", kNoun},
    {u"pl", kNoun},         {u"pn", kNoun},
    {u"v", kVerb},          {u"vt", kVerb},
    {u"vi", kVerb},         {u"vbl", kVerb},
    {u"pp", kVerb},         {u"ing", kVerb},
    {u"a", kAdjective},     {u"adj", kAdjective},
    {u"adv", kAdverb},      {u"ad", kAdverb},
    {u"prep", kFunction},   {u"pron", kFunction},
    {u"num", kFunction},    {u"conj", kFunction},
    {u"art", kFunction},    {u"quant", kFunction},
    {u"int", kFunction},    {u"interj", kFunction},
    {u"exclam", kFunction}, {u"aux", static_cast<PartOfSpeechSet>(kVerb | kFunction)},
}};

/// Number of blanks from `position` on.
std::size_t blanksAt(std::u16string_view text, std::size_t position) {
  std::size_t length = 0;
  while (position + length < text.size() && text[position + length] == u' ') ++length;
  return length;
}

/// Returns whether `text` begins with a Han character, or with a bracket or mark before one.
bool beginsChinese(std::u16string_view text) {
  return !text.empty() && (isHan(text[0]) || openingBracket(text[0]) != Bracket::kNone ||
                           text[0] == u'…' || text[0] == u'“' || text[0] == u'《');
}

/// Returns whether `text`, which follows a mark, is a note and then the mark's full stop: "n<古>.",
/// "a[生化].".
bool isNoteThenStop(std::u16string_view text) {
  if (text.empty() || openingBracket(text[0]) == Bracket::kNone) return false;
  const std::size_t close = closingPosition(text, 0);
  return close != std::u16string_view::npos && text.substr(close + 1).starts_with(u'.');
}

/// Number of ASCII letters at the beginning of `text`.
std::size_t lettersAt(std::u16string_view text) {
  std::size_t letters = 0;
  while (letters < text.size() && isAsciiLetter(text[letters])) ++letters;
  return letters;
}

bool isStop(char16_t unit) { return unit == u'.' || unit == u'．'; }

bool isBareMark(std::u16string_view mark) {
  return std::ranges::find(kBareMarks, mark) != kBareMarks.end();
}

/// Length of a mark with its full stop, 0 if there is none.
std::size_t stoppedMarkLength(std::u16string_view text) {
  constexpr std::u16string_view kLinkingVerb = u"link-v.";
  if (text.starts_with(kLinkingVerb)) return kLinkingVerb.size();
  const std::size_t letters = lettersAt(text);
  const std::u16string_view mark = text.substr(0, letters);
  const bool known = letters < text.size() && isStop(text[letters]) &&
                     std::ranges::find(kMarks, mark) != kMarks.end();
  if (!known) return 0;
  // "comb.form" is one mark.
  constexpr std::u16string_view kForm = u"form";
  const std::size_t form = letters + 1 + blanksAt(text, letters + 1);
  const bool combining =
      mark == u"comb" && text.substr(form, lettersAt(text.substr(form))) == kForm;
  return combining ? form + kForm.size() : letters + 1;
}

/// Length of one mark without the link to the next.
std::size_t markLength(std::u16string_view text) {
  if (const std::size_t stopped = stoppedMarkLength(text); stopped > 0) return stopped;
  const std::size_t letters = lettersAt(text);
  if (letters == text.size() || !isBareMark(text.substr(0, letters))) return 0;
  // "vt,vi.": the stop of the last one serves all.
  const bool linked = kLinks.find(text[letters]) != std::u16string_view::npos;
  if (linked && stoppedMarkLength(text.substr(letters + 1)) > 0) return letters;
  const std::size_t blanks = blanksAt(text, letters);
  const bool bare = (blanks > 0 && beginsChinese(text.substr(letters + blanks))) ||
                    isNoteThenStop(text.substr(letters));
  return bare ? letters : 0;
}

}  // namespace

// Marks are read one after the other, with links between them. A link after the last mark belongs
// to the equivalent, and is not counted, unless it is "&".
std::size_t partOfSpeechLength(std::u16string_view text) {
  std::size_t length = 0;
  for (std::size_t next = 0;;) {
    const std::size_t mark = markLength(text.substr(next));
    if (mark == 0) return length;
    next += mark;
    next += blanksAt(text, next);
    length = next;
    while (next < text.size() && kLinks.find(text[next]) != std::u16string_view::npos) {
      ++next;
      next += blanksAt(text, next);
    }
    if (next != length && markLength(text.substr(next)) == 0 && text[length] == u'&') {
      return next;
    }
  }
}

bool beginsFurtherSense(std::u16string_view text) {
  constexpr std::u16string_view kSecond = u"ll ";
  if (text.starts_with(kSecond)) text.remove_prefix(kSecond.size());
  const std::size_t letters = lettersAt(text);
  if (!isBareMark(text.substr(0, letters)) || letters == text.size()) return false;
  const std::u16string_view sense = text.substr(letters + 1);
  return isStop(text[letters]) && beginsChinese(sense) && !sense.starts_with(u'的');
}

PartOfSpeechSet partsOfSpeechIn(std::u16string_view marks) {
  PartOfSpeechSet parts = 0;
  for (std::size_t i = 0; i < marks.size(); ++i) {
    const std::size_t letters = lettersAt(marks.substr(i));
    const auto* const known =
        std::ranges::find(kMeanings, marks.substr(i, letters), &MarkMeaning::mark);
    if (known != kMeanings.end()) parts = static_cast<PartOfSpeechSet>(parts | known->parts);
    i += letters;
  }
  return parts;
}

bool marksSlang(std::u16string_view notes) {
  constexpr std::array kSlangMarks = {
      u"方"sv, u"英方"sv, u"美方"sv, u"方言"sv,   u"英国方言"sv, u"古"sv, u"古语"sv,
      u"废"sv, u"废语"sv, u"罕"sv,   u"罕用语"sv, u"诗"sv,       u"蔑"sv, u"粗"sv,
      u"旧"sv, u"儿语"sv, u"黑话"sv, u"苏格兰"sv, u"主苏格兰"sv};
  for (std::size_t i = 0; i < notes.size(); ++i) {
    const std::size_t close = openingBracket(notes[i]) == Bracket::kNone
                                  ? std::u16string_view::npos
                                  : closingPosition(notes, i);
    if (close == std::u16string_view::npos) continue;
    const std::u16string_view note = text::trimBlanks(notes.substr(i + 1, close - i - 1));
    constexpr std::size_t kLongestMark = 5;  // "美国俚语" and one more
    if (std::ranges::find(kSlangMarks, note) != kSlangMarks.end() ||
        (note.size() <= kLongestMark && note.find(u'俚') != std::u16string_view::npos)) {
      return true;
    }
    i = close;
  }
  return false;
}

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

}  // namespace dictionary
