#pragma once

#include <string_view>

#include "dictionary/translation/subjects.h"

/// Pieces that translate or announce the name of a person or a place, and explanations after a
/// word. The source writes these without any markup; the phrases that occur are listed in the .cpp.
/// The functions are pure; returned views refer into the argument.
namespace dictionary {

/// A piece divided at the colon that introduces an explanation.
struct Explained {
  std::u16string_view word;
  bool explains = false;  ///< whether a Chinese explanation was cut off
};

/// Returns the piece without an explanation after a colon: "拜药：乳香的一种" gives 拜药. Of a
/// lead-in such as "表示：" the text after it is returned instead. A colon between digits or inside
/// a note does not count.
Explained splitExplanation(std::u16string_view piece);

/// Returns the name at the beginning of a piece that then explains it without a separator:
/// "巴克 Barker的变体" gives 巴克, "塔隆来源于日耳曼语人名" gives 塔隆. Returns the whole of a
/// piece without such an explanation.
std::u16string_view leadingName(std::u16string_view piece);

/// Returns the subjects in notes after the name: "鲍曼（姓氏）" is a person, "青木（地名）" a
/// place. Returns 0 without such a note.
SubjectSet namedByNote(std::u16string_view piece);

/// Returns the subjects of the names that follow a piece which only announces them, otherwise 0.
/// "(Luang)人名" always announces persons; a bare 人名, 姓氏 or 地名 announces names if
/// `beforeList` is set, and is an equivalent ("place name") otherwise.
SubjectSet announcedNames(std::u16string_view piece, bool beforeList);

}  // namespace dictionary
