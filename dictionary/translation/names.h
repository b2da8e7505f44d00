#pragma once

#include <string_view>

#include "dictionary/translation/subjects.h"

/// Pieces that translate or announce the name of a person or a place, and explanations after a
/// word. The source writes these without any markup; the phrases that occur are listed in the .cpp.
/// Returned views refer into the argument.
namespace dictionary {

/// A piece divided at the colon that introduces an explanation.
struct Explained {
  std::u16string_view word;
  bool explains = false;  ///< whether a Chinese explanation was cut off
};

/// Cuts an explanation off: "拜药：乳香的一种" gives 拜药. A lead-in such as "表示：" is cut off
/// instead of what follows it. A colon between digits or inside a note does not count.
Explained splitExplanation(std::u16string_view piece);

/// The name at the beginning of a piece that goes on to explain it without a separator: "巴克
/// Barker的变体" gives 巴克, "塔隆来源于日耳曼语人名" gives 塔隆.
std::u16string_view leadingName(std::u16string_view piece);

/// Subjects that a piece claims by a note at its end: "鲍曼（姓氏）" is a person, "青木（地名）" a
/// place. 0 if there is none.
SubjectSet namedByNote(std::u16string_view piece);

/// Subjects of the names that follow a piece which only announces them; 0 if it does not.
/// "(Luang)人名" always announces persons; a bare 人名, 姓氏 or 地名 announces names only if
/// `standsInFront` says that it stands before a list, and is an equivalent ("place name")
/// otherwise.
SubjectSet announcedNames(std::u16string_view piece, bool standsInFront);

}  // namespace dictionary
