#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Cleaning of the source's texts before they are parsed. All functions are pure.
namespace dictionary {

/// Returns the English headword of an entry as the database stores it: blanks trimmed and folded.
/// Returns nullopt for a word that the lookups could not find: more than 64 characters, characters
/// other than printable ASCII, neither letter nor digit, a wildcard (% _ *), double quote or
/// backslash, a leading question mark, or markup.
std::optional<std::u16string> headword(std::u16string_view word);

/// Returns the lines of a translation after cleaning: entity codes and markup decoded, titles
/// marked (markTitles()), blanks folded and trimmed, invisible characters deleted, known
/// substitutes for lost Han characters restored. Empty lines and lines that name the source of the
/// others are left out.
std::vector<std::u16string> translationLines(std::u16string_view translation);

/// Returns `text` with blanks trimmed at both ends and runs of blanks folded to one space. Tabs,
/// no-break and ideographic spaces are blanks; invisible characters (zero-width, soft hyphen, byte
/// order mark) are deleted.
std::u16string foldBlanks(std::u16string_view text);

}  // namespace dictionary
