#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Brackets and quotation marks in a translation. All functions are pure.
namespace dictionary {

/// Kinds of brackets that enclose notes in the source. The narrow and wide forms of a kind may be
/// mixed in one pair.
enum class Bracket { kNone, kRound, kSquare, kAngle };

/// Return the kind of bracket that `unit` opens or closes; kNone for any other character.
Bracket openingBracket(char16_t unit);
Bracket closingBracket(char16_t unit);

/// Returns the index of the bracket that closes the one at `open`, which must be one. Brackets of
/// the same kind nest; others do not count. Returns npos if there is none within 400 characters.
std::size_t closingPosition(std::u16string_view text, std::size_t open);

/// Returns the index after the quotation mark that closes the one at `open` (“…”, ‘…’, 《…》,
/// 『…』). Returns npos if there is no quotation mark at `open`, or none within 400 characters that
/// closes it.
std::size_t quotationEnd(std::u16string_view text, std::size_t open);

/// Returns `text` without its bracketed notes. Brackets that are part of a chemical name are kept
/// ("苯并[c]呋喃", "2-(1-萘甲基)-咪唑啉", "四氯合金(III)酸钾"), and so is one that does not close,
/// except for the first of two that close once.
std::u16string withoutNotes(std::u16string_view text);

}  // namespace dictionary
