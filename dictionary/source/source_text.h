#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dictionary {

/// The English headword of an entry as the database keeps it: blanks trimmed and folded. Nothing
/// for a word that could not be looked up: other characters than printable ASCII, neither letter
/// nor digit, a wildcard, quote or backslash, a question mark in front, markup, more than 64
/// characters.
std::optional<std::u16string> headword(std::u16string_view word);

/// The lines of a translation, cleaned: entity codes and markup undone, blanks folded and trimmed,
/// invisible marks gone, known stand-ins for lost Han characters repaired. Empty lines are left
/// out.
std::vector<std::u16string> translationLines(std::u16string_view translation);

/// Blanks trimmed at both ends, runs of blanks folded to one; tabs and wide blanks count as blanks.
std::u16string foldBlanks(std::u16string_view text);

}  // namespace dictionary
