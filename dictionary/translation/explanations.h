#pragma once

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
Explained splitExplanation(std::u16string_view piece);

/// Returns whether the piece says what a command or driver of DOS does, "DOS内部命令:复制文件", or
/// only that the word is one.
bool describesCommand(std::u16string_view piece);

}  // namespace dictionary
