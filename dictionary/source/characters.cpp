#include "dictionary/source/characters.h"

#include <cstddef>

#include "text/characters.h"
#include "text/utf.h"

namespace dictionary {
namespace {

bool within(char16_t unit, char16_t first, char16_t last) { return unit >= first && unit <= last; }

/// Length of the valid UTF-8 sequence at the beginning of `bytes`, 0 if there is none.
std::size_t sequenceLength(std::string_view bytes) {
  const bool ascii = static_cast<unsigned char>(bytes[0]) < 0x80;
  return ascii ? 1 : text::readSequence(bytes).length;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = sequenceLength(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

bool isHan(char16_t unit) { return text::isUnifiedHan(unit); }

bool isAsciiLetter(char16_t unit) { return within(unit, u'a', u'z') || within(unit, u'A', u'Z'); }

bool isDigit(char16_t unit) { return within(unit, u'0', u'9'); }

bool isGreek(char16_t unit) { return within(unit, 0x0370, 0x03FF); }

bool isCyrillic(char16_t unit) { return within(unit, 0x0400, 0x04FF); }

bool isLatin1Letter(char16_t unit) {
  // Two signs, × and ÷, are among the letters.
  return within(unit, 0x00C0, 0x00FF) && unit != 0x00D7 && unit != 0x00F7;
}

bool isLatin(char16_t unit) { return isAsciiLetter(unit) || isLatin1Letter(unit); }

bool isForeign(char16_t unit) { return !text::isChinese(unit); }

bool isForbidden(char16_t unit) {
  return unit < 0x20 || within(unit, 0x7F, 0x9F) || unit == 0xAD ||  // controls, soft hyphen
         within(unit, 0x0300, 0x036F) ||                             // marks left uncomposed
         within(unit, 0x200B, 0x200F) || within(unit, 0x2028, 0x202E) ||
         within(unit, 0x2060, 0x206F) || unit == 0xFEFF ||  // invisible marks
         within(unit, 0x2500, 0x257F) ||                    // box drawing
         within(unit, 0xD800, 0xF8FF) ||                    // surrogates, private use
         within(unit, 0xF900, 0xFAFF) ||                    // compatibility ideographs
         within(unit, 0xFDD0, 0xFDEF) || unit >= 0xFFF0;    // specials, noncharacters
}

bool isSubstitute(char16_t unit) {
  // ā to ſ, ǎ to ǜ, Ǹ and ǹ: pinyin's vowels and n with their tone marks, and what is between them.
  const bool pinyinVowel = within(unit, 0x0100, 0x017F) || within(unit, 0x01CD, 0x01DC) ||
                           unit == 0x01F8 || unit == 0x01F9;
  return isCyrillic(unit) || within(unit, 0x3105, 0x312F) || pinyinVowel ||
         within(unit, 0x25A0, 0x25FF);
}

char16_t narrow(char16_t unit) {
  if (unit >= 0xFF01 && unit <= 0xFF5D) return static_cast<char16_t>(unit - 0xFEE0);
  switch (unit) {
    case u'\'':
    case u'’':
    case u'‘':
      return u'′';
    case u'•':
    case u'‧':
    case u'・':
      return u'·';
    case u'—':
    case u'–':
    case u'―':
      return u'-';
    case u'º':
      return u'°';
    case u'~':
      return u'～';
    default:
      return unit;
  }
}

bool isIntact(std::u16string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (isForbidden(text[i]) || isSubstitute(text[i])) return false;
    // A single accented letter is the remnant of a lost Han character.
    const bool afterLatin = i > 0 && isLatin(text[i - 1]);
    const bool beforeLatin = i + 1 < text.size() && isLatin(text[i + 1]);
    if (isLatin1Letter(text[i]) && !afterLatin && !beforeLatin) return false;
  }
  return true;
}

}  // namespace dictionary
