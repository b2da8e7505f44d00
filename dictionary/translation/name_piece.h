#pragma once

#include <string_view>

#include "dictionary/translation/subjects.h"

namespace dictionary {

/// The name at the beginning of a piece that goes on to explain it: "巴克 Barker的变体" gives 巴克,
/// "塔隆来源于日耳曼语人名" gives 塔隆.
std::u16string_view leadingName(std::u16string_view piece);

/// Subjects that a piece claims by a note at its end: "鲍曼（姓氏）" is a person, "青木（地名）" a
/// place.
SubjectSet namedByNote(std::u16string_view piece);

/// Subjects of the names that the piece only announces, 0 if it does not: "(Luang)人名" always, and
/// 人名, 姓氏 or 地名 where its place in the line says so (`standsInFront`). Elsewhere these words
/// are what they say: the translation of "place name".
SubjectSet announcedNames(std::u16string_view piece, bool standsInFront);

}  // namespace dictionary
