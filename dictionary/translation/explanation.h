#pragma once

#include <string_view>

namespace dictionary {

/// A piece that may go on to explain its word behind a colon.
struct Explained {
  std::u16string_view word;
  bool explains = false;  ///< whether a Chinese explanation was cut off
};

/// "拜药：乳香的一种" gives 拜药. A lead-in such as "表示：" is dropped instead. A colon between
/// digits or inside a note parts nothing.
Explained splitExplanation(std::u16string_view piece);

}  // namespace dictionary
