#pragma once

#include <string>
#include <string_view>

/// Text in brackets that is shown: notes, and what is no note but a part of the equivalent. Of the
/// latter the source encloses
/// - optional characters of a term, in lines of medicine, in square brackets: "硬脑[脊]膜" is both
///   硬脑脊膜 and 硬脑膜;
/// - objects of prepositions and verbs in round ones: "把(乐曲)分成短句", "合(某人)的口味". Without
///   them the rest would be no sentence part.
/// The functions are pure.
namespace dictionary {

/// Returns `text` with the brackets around optional characters deleted: the full form. Brackets
/// around a note stay: a kind of drug behind its name ("卤泛群[抗疟药]"), a mark of usage, anything
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
