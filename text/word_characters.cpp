#include "text/word_characters.h"

#include <algorithm>
#include <array>

#include "text/characters.h"

namespace text {
namespace {

constexpr char16_t kEnDash = 0x2013;
constexpr char16_t kFirstSubscript = 0x2080;
constexpr char16_t kFirstLigature = 0xFB00;
/// By code point, from kFirstLigature on. Texts that were laid out for print contain them.
constexpr auto kLigatures =
    std::to_array<std::u16string_view>({u"ff", u"fi", u"fl", u"ffi", u"ffl", u"st", u"st"});

constexpr bool within(char16_t unit, char16_t first, char16_t last) {
  return unit >= first && unit <= last;
}

bool isSubscriptDigit(char16_t unit) { return within(unit, kFirstSubscript, kFirstSubscript + 9); }

bool isLigature(char16_t unit) {
  return unit >= kFirstLigature && unit - kFirstLigature < static_cast<int>(kLigatures.size());
}

/// Latin-1 without its two operators, Latin Extended-A, -B and Additional.
bool isLatinLetter(char16_t unit) {
  return within(unit, u'A', u'Z') || within(unit, u'a', u'z') ||
         (within(unit, 0xC0, 0x24F) && unit != 0xD7 && unit != 0xF7) ||
         within(unit, 0x1E00, 0x1EFF) || isLigature(unit);
}

bool isHyphen(char16_t unit) { return unit == u'-' || unit == 0x2010 || unit == 0x2011; }

/// U+0060 and U+00B4 are accents that are typed for it; U+2018 and U+201B are opening quotation
/// marks, which programs set for it by mistake, U+02BC and U+2019 the apostrophe itself.
bool isApostrophe(char16_t unit) {
  return unit == u'\'' || unit == u'`' || unit == 0xB4 || unit == 0x2BC || unit == 0x2018 ||
         unit == 0x2019 || unit == 0x201B;
}

/// Combining diacritical marks, of which decomposed letters have one or more.
bool isCombiningMark(char16_t unit) { return within(unit, 0x300, 0x36F); }

// The tables hold one character for each letter of a block, in the order of the code points: the
// base letter of its compatibility decomposition in the Unicode Character Database or, for letters
// with a stroke and the like, which have none, the letter that they are drawn from. "*" stands for
// two letters, which kTwoLetters names, and "." for a letter that stays as it is.
constexpr char16_t kFirstLetter = 0xC0;
constexpr std::u16string_view kLetters =
    u"AAAAAA*CEEEEIIIIDNOOOOO.OUUUUY**aaaaaa*ceeeeiiiidnooooo.ouuuuy*yAaAaAaCcCcCcCcDd"
    u"DdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIi**JjKkkLlLlLlLlLlNnNnNnnNnOoOoOo**RrRrRrSsSsSs"
    u"SsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzsb........D.............I..l.....Oo.............U"
    u"u....Zz.............*********AaIiOoUuUuUuUuUu.AaAa**GgGgKkOoOo..j***Gg..NnAa**Oo"
    u"AaAaEeEeIiIiOoOoRrRrUuUuSsTt..Hh......AaEeOoOoOoOoYy......ACcLT....B..EeJj..RrYy";

constexpr char16_t kFirstAdditional = 0x1E00;
constexpr std::u16string_view kAdditional =
    u"AaBbBbBbCcDdDdDdDdDdEeEeEeEeEeFfGgHhHhHhHhHhIiIiKkKkKkLlLlLlLlMmMmMmNnNnNnNnOoOo"
    u"OoOoPpPpRrRrRrRrSsSsSsSsSsTtTtTtTtUuUuUuUuUuVvVvWwWwWwWwWwXxXxYyZzZzZzhtwyas..*."
    u"AaAaAaAaAaAaAaAaAaAaAaAaEeEeEeEeEeEeEeEeIiIiOoOoOoOoOoOoOoOoOoOoOoOoUuUuUuUuUuUu"
    u"UuYyYyYyYy......";
static_assert(kLetters.size() == 0x24F - kFirstLetter + 1);
static_assert(kAdditional.size() == 0x1EFF - kFirstAdditional + 1);

struct TwoLetters {
  char16_t letter;
  std::u16string_view written;
};
constexpr auto kTwoLetters = std::to_array<TwoLetters>(
    {{u'Æ', u"AE"}, {u'æ', u"ae"}, {u'Ǽ', u"AE"}, {u'ǽ', u"ae"}, {u'Ǣ', u"AE"}, {u'ǣ', u"ae"},
     {u'Œ', u"OE"}, {u'œ', u"oe"}, {u'Þ', u"Th"}, {u'þ', u"th"}, {u'ß', u"ss"}, {u'ẞ', u"SS"},
     {u'Ĳ', u"IJ"}, {u'ĳ', u"ij"}, {u'Ǆ', u"DZ"}, {u'ǅ', u"Dz"}, {u'ǆ', u"dz"}, {u'Ǳ', u"DZ"},
     {u'ǲ', u"Dz"}, {u'ǳ', u"dz"}, {u'Ǉ', u"LJ"}, {u'ǈ', u"Lj"}, {u'ǉ', u"lj"}, {u'Ǌ', u"NJ"},
     {u'ǋ', u"Nj"}, {u'ǌ', u"nj"}});

/// Returns the entry of `table`, which begins with `first`; "." outside it.
char16_t entryIn(std::u16string_view table, char16_t first, char16_t unit) {
  const bool isInside = unit >= first && std::size_t{unit} - first < table.size();
  return isInside ? table[std::size_t{unit} - first] : u'.';
}

char16_t entryFor(char16_t unit) {
  return unit < kFirstAdditional ? entryIn(kLetters, kFirstLetter, unit)
                                 : entryIn(kAdditional, kFirstAdditional, unit);
}

}  // namespace

UnitKind unitKind(char16_t unit) {
  const char16_t plain = narrow(unit);
  if (isLatinLetter(plain) || isCombiningMark(plain) || plain == kSoftHyphen) {
    return UnitKind::kLetter;
  }
  if (within(plain, u'0', u'9') || isSubscriptDigit(plain)) return UnitKind::kDigit;
  if (isHyphen(plain)) return UnitKind::kHyphen;
  if (isApostrophe(plain)) return UnitKind::kApostrophe;
  if (isHan(plain)) return UnitKind::kHan;
  constexpr std::u16string_view kInner = u".,/&+#()[]\u2013";
  return kInner.find(plain) != std::u16string_view::npos ? UnitKind::kInner : UnitKind::kBreak;
}

bool isOpeningBracket(char16_t unit) {
  constexpr std::u16string_view kOpening = u"([{<“〈《「『【〔〖｢";
  return kOpening.find(unit) != std::u16string_view::npos;
}

bool isClosingBracket(char16_t unit) {
  constexpr std::u16string_view kClosing = u")]}>”〉》」』】〕〗｣";
  return kClosing.find(unit) != std::u16string_view::npos;
}

std::u16string spelled(std::u16string_view text) {
  std::u16string word;
  word.reserve(text.size());
  for (const char16_t unit : text) {
    const char16_t plain = narrow(unit);
    if (plain == kSoftHyphen) continue;
    if (isLigature(plain)) {
      word += kLigatures.at(static_cast<std::size_t>(plain - kFirstLigature));
    } else if (isSubscriptDigit(plain)) {
      word += static_cast<char16_t>(plain - kFirstSubscript + u'0');
    } else if (isHyphen(plain) || plain == kEnDash) {
      word += u'-';
    } else {
      word += isApostrophe(plain) ? u'\'' : plain;
    }
  }
  return word;
}

std::u16string withoutAccents(std::u16string_view word) {
  std::u16string plain;
  plain.reserve(word.size());
  for (const char16_t unit : word) {
    if (isCombiningMark(unit)) continue;
    const char16_t entry = entryFor(unit);
    if (entry == u'*') {
      const auto* const two = std::find_if(kTwoLetters.begin(), kTwoLetters.end(),
                                           [&](const TwoLetters& t) { return t.letter == unit; });
      plain += two == kTwoLetters.end() ? std::u16string_view(&unit, 1) : two->written;
    } else {
      plain += entry == u'.' ? unit : entry;
    }
  }
  return plain;
}

}  // namespace text
