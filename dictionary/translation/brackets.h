#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace dictionary {

/// Kinds of brackets that set off notes in the source; narrow and wide forms may pair up.
enum class Bracket { kNone, kRound, kSquare, kAngle };

/// Kind of the bracket that `unit` opens or closes.
Bracket openingBracket(char16_t unit);
Bracket closingBracket(char16_t unit);

/// Position of the bracket that closes the one at `open`, npos if there is none.
std::size_t closingPosition(std::u16string_view text, std::size_t open);

/// Position behind the closing quotation mark that belongs to the one at `open` (“…”, ‘…’, 《…》,
/// 『…』); npos if there is no quotation mark at `open` or none that closes it.
std::size_t quotationEnd(std::u16string_view text, std::size_t open);

/// `text` without its bracketed notes. Brackets that belong to a chemical name stay ("苯并[c]呋喃",
/// "2-(1-萘甲基)-咪唑啉", "四氯合金(III)酸钾"), and so does one that does not close.
std::u16string withoutNotes(std::u16string_view text);

}  // namespace dictionary
