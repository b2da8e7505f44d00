#pragma once

/// Kinds of characters in the source texts. All texts are UTF-16; characters beyond U+FFFF arrive
/// as surrogates, which count as forbidden.
namespace dictionary {

/// Han characters as the text order ranks them, without the compatibility ideographs.
bool isHan(char16_t unit);

bool isAsciiLetter(char16_t unit);
bool isDigit(char16_t unit);
bool isGreek(char16_t unit);
bool isCyrillic(char16_t unit);

/// Letters of Latin-1 beyond ASCII.
bool isLatin1Letter(char16_t unit);

/// ASCII or Latin-1 letter.
bool isLatin(char16_t unit);

/// Characters that no row of the database may hold: controls, invisible marks, surrogates, private
/// use, box drawing, compatibility ideographs (they look like another character and could never be
/// found by typing that one), U+FFFD and noncharacters.
bool isForbidden(char16_t unit);

/// Characters that stand where the source lost a rare Han character: Cyrillic, Bopomofo, vowels
/// with pinyin tone marks, geometric shapes.
bool isStandIn(char16_t unit);

}  // namespace dictionary
