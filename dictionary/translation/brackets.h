#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace dictionary {

/// Kinds of brackets that enclose notes in the source. The narrow and wide forms of a kind may be
/// mixed in one pair.
enum class Bracket { kNone, kRound, kSquare, kAngle };

/// Kind of the bracket that `unit` opens or closes; kNone for any other character.
Bracket openingBracket(char16_t unit);
Bracket closingBracket(char16_t unit);

/// Index of the bracket that closes the one at `open`, brackets of the same kind nesting; npos if
/// there is none within 400 characters.
std::size_t closingPosition(std::u16string_view text, std::size_t open);

/// Index after the quotation mark that closes the one at `open` (“…”, ‘…’, 《…》, 『…』); npos if
/// there is no quotation mark at `open` or none within 400 characters that closes it.
std::size_t quotationEnd(std::u16string_view text, std::size_t open);

/// `text` without its bracketed notes. Brackets that are part of a chemical name are kept
/// ("苯并[c]呋喃", "2-(1-萘甲基)-咪唑啉", "四氯合金(III)酸钾"), and so is one that does not close.
std::u16string withoutNotes(std::u16string_view text);

}  // namespace dictionary
