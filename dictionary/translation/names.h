#pragma once

#include <string_view>

#include "dictionary/translation/subjects.h"

/// Pieces that translate or announce the name of a person or a place. The source writes these
/// without any markup; the phrases that occur are listed in the .cpp. The functions are pure;
/// returned views refer into the argument.
namespace dictionary {

/// Returns the name at the beginning of a piece that then explains it without a separator:
/// "巴克 Barker的变体" gives 巴克, "塔隆来源于日耳曼语人名" gives 塔隆. Returns the whole of a
/// piece without such an explanation, or with one in brackets only.
std::u16string_view leadingName(std::u16string_view piece);

/// Returns the subjects in notes after the name: "鲍曼（姓氏）" is a person, "青木（地名）" a
/// place. Returns 0 without such a note.
SubjectSet namedByNote(std::u16string_view piece);

/// Returns the subjects of the names that follow a piece which only announces them, otherwise 0.
/// "(Luang)人名" always announces persons; a bare 人名, 姓氏 or 地名 announces names if
/// `beforeList` is set, and is an equivalent ("place name") otherwise.
SubjectSet announcedNames(std::u16string_view piece, bool beforeList);

}  // namespace dictionary
