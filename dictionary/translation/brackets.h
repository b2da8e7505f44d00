#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Brackets and quotation marks in a translation, and what is to be done with the text in them. All
/// functions are pure.
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

/// Returns `text` with straight quotation marks turned into opening and closing ones by turns.
/// Single ones are quotation marks if the first precedes Chinese text and their number is even;
/// otherwise they are primes.
std::u16string curled(std::u16string_view text);

/// Returns `text` without quotation marks around the whole of it or around a foreign word at its
/// beginning.
std::u16string withoutQuotes(std::u16string_view text);

/// Returns the equivalent beside a round bracket whose counterpart is missing: the text after a
/// note ("挖土机等的)铲") or before one ("承认(比赛"). `afterNote`: notes were deleted, so that a
/// bracket at the end is one too many ("布鲁姆（地名））"); without them, the text before it may be
/// a note.
std::u16string_view withoutLooseBracket(std::u16string_view text, bool afterNote);

// Text in brackets is a note, or a part of the equivalent. Of the latter kind the source encloses
// - optional characters of a term, in lines of medicine, in square brackets: "硬脑[脊]膜" is both
//   硬脑脊膜 and 硬脑膜;
// - objects of prepositions and verbs in round ones: "把(乐曲)分成短句", "合(某人)的口味". Without
//   them the rest would be no sentence part.

/// Returns `text` with the brackets around optional characters deleted: the full form. Brackets
/// around a note stay: a kind of drug after its name ("卤泛群[抗疟药]"), a mark of usage, anything
/// longer than six characters or not of Han characters only.
std::u16string withOptionalCharacters(std::u16string_view text);

/// Returns `piece` with an ellipsis for the bracketed object of its first word ("把…分成短句") and
/// without the brackets around placeholders that Chinese text follows ("合某人的口味"), then also
/// around its other placeholders. After either, a note at the end becomes an ellipsis where the
/// text before it needs an object ("将…传给…"). Any other note stays as it is.
std::u16string withObjects(std::u16string_view piece);

/// Returns the piece of a verb's line with an ellipsis for each note that has something: "记入（账
/// 户）的借方" gives 记入…的借方.
std::u16string withVerbObjects(std::u16string_view piece);

/// Returns the piece as a subject dictionary shows it: with its notes, except for those that
/// contain forbidden characters. Returns "" if such a character, or a substitute for a lost one,
/// occurs outside notes.
std::u16string notedText(std::u16string_view piece);

}  // namespace dictionary
