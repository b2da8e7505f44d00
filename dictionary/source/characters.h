#pragma once

#include <string_view>

/// Kinds of characters in the source texts, by UTF-16 code unit. Characters beyond U+FFFF arrive as
/// surrogates, which are forbidden: the lookups compare single code units. All functions are pure.
namespace dictionary {

/// Returns whether the bytes are well-formed UTF-8.
bool isUtf8(std::string_view bytes);

/// Han characters without the compatibility ideographs, which no row may hold.
bool isHan(char16_t unit);

/// ASCII letters, ASCII digits, and the blocks "Greek and Coptic" and "Cyrillic".
bool isAsciiLetter(char16_t unit);
bool isDigit(char16_t unit);
bool isGreek(char16_t unit);
bool isCyrillic(char16_t unit);

/// Letters of Latin-1 beyond ASCII.
bool isLatin1Letter(char16_t unit);

/// ASCII or Latin-1 letters.
bool isLatin(char16_t unit);

/// Characters of foreign words and of the marks between them: all of Latin-1.
bool isForeign(char16_t unit);

/// Characters that no row of the database may hold: controls, invisible characters, combining
/// marks, surrogates, private use, box drawing, compatibility ideographs (they look like another
/// character and are never found by typing that one), U+FFFD and noncharacters.
bool isForbidden(char16_t unit);

/// Characters that may be in the source in place of a lost Han character: Cyrillic, Bopomofo,
/// vowels with pinyin tone marks, geometric shapes. A Chinese text with one left is not used.
bool isSubstitute(char16_t unit);

/// Returns whether `text` contains neither forbidden characters nor substitutes for lost ones.
bool isIntact(std::u16string_view text);

/// Returns the form of a character that headwords use: ASCII for wide forms, one character for each
/// kind of prime, middle dot, hyphen and so on.
char16_t narrow(char16_t unit);

}  // namespace dictionary
