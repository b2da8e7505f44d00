#pragma once

#include <string>
#include <string_view>

/// Objects of prepositions and verbs, which the source encloses in round brackets: "把(乐曲)分成短
/// 句", "合(某人)的口味". Without them the rest would be no sentence part. The functions are pure.
namespace dictionary {

/// Returns `piece` with an ellipsis for the bracketed object of its first word ("把…分成短句") and
/// without the brackets around placeholders that Chinese text follows ("合某人的口味"), then also
/// around its other placeholders. After either, a note at the end becomes an ellipsis where the
/// text before it needs an object ("将…传给…"). Any other note stays as it is.
std::u16string withObjects(std::u16string_view piece);

/// Returns the piece of a verb's line with an ellipsis for each note that has something: "记入（账
/// 户）的借方" gives 记入…的借方.
std::u16string withVerbObjects(std::u16string_view piece);

}  // namespace dictionary
