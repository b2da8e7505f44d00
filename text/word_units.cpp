#include "text/word_units.h"

#include <array>

#include "text/accents.h"
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

}  // namespace text
