#pragma once

#include <cstddef>
#include <string_view>

/// Explanations and labels in a piece, which translate nothing: "拜药：乳香的一种",
/// "意大利服装名牌： 芬迪", "DOS内部命令:复制文件". The source writes these without any markup; the
/// phrases that occur are listed in the .cpp. The functions are pure; returned views refer into the
/// argument.
namespace dictionary {

/// A piece divided at the colon that introduces an explanation.
struct Explained {
  std::u16string_view word;
  bool explains = false;  ///< whether a Chinese explanation was cut off
};

/// Returns the piece without an explanation after a colon: "拜药：乳香的一种" gives 拜药,
/// "海宁全名： Justine Henin" gives 海宁. Of a lead-in such as "表示：" or "意大利服装名牌：" the
/// text after it is returned instead. A colon between digits or inside a note does not count.
/// Also removes the beginning of a sentence: "又称蹄兔" gives 蹄兔, "是一种抗疟药" 一种抗疟药.
Explained splitExplanation(std::u16string_view piece);

/// Returns whether the piece says what a command or driver of DOS does, "DOS内部命令:复制文件", or
/// only that the word is one.
bool describesCommand(std::u16string_view piece);

/// Returns what stands between the quotation marks of "表示“水, 波浪”之义" or "意为“解热剂”", or
/// the brackets of "表示(含铁)之义", which translates a word element; "" if the piece does not
/// begin so.
std::u16string_view quotedMeaning(std::u16string_view piece);

/// Returns the equivalent of a word element without a lead-in and the quotation marks after it:
/// "表示食" gives 食, "表示“油”" gives 油; "" if nothing else is left ("表示之义").
std::u16string_view elementMeaning(std::u16string_view word);

/// Returns whether the piece tells what a name means ("含义是“愉快的保护”").
bool explainsName(std::u16string_view piece);

/// Returns the index of the bracket after the first name of a person whose life begins there: "约翰
/// ((1906-1984) 英国诗人". The surname is the piece before. Returns npos for any other piece.
std::size_t lifePosition(std::u16string_view piece);

/// Returns the name in a piece that has the years of a person's life after it, without anything in
/// foreign letters before it: "Hanri 卢梭(1844-1910)", "麦克道尔(1818-1885)美国将领". Returns ""
/// for any other piece. Pieces after it, up to the next semicolon, describe the person.
std::u16string_view nameBeforeYears(std::u16string_view piece);

}  // namespace dictionary
