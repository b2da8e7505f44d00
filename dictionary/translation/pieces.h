#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace dictionary {

struct RawPiece {
  std::u16string_view text;
  char16_t separator;  ///< ，；、！ before it; 0 for the first
};

/// Splits at commas, semicolons, enumeration commas, exclamation and question marks, narrow or
/// wide, outside brackets and quotation marks. A comma between digits or foreign letters
/// ("2,4-二氯苯") parts nothing. The pieces refer into `text`.
std::vector<RawPiece> splitPieces(std::u16string_view text);

/// "apple的复数" where a note in the line says that its headword is an inflected form; else "".
std::u16string inflectionNote(std::u16string_view line);

}  // namespace dictionary
