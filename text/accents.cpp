#include "text/accents.h"

#include <algorithm>
#include <array>

// The tables hold one character for each letter of a block, in the order of the code points: the
// base letter of its compatibility decomposition in the Unicode Character Database or, for letters
// with a stroke and the like, which have none, the letter that they are drawn from. "*" stands for
// two letters, which kTwoLetters names, and "." for a letter that stays as it is.
namespace text {
namespace {

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
