#pragma once

#include <string_view>

/// Cutting what follows a proper name in its gloss. Glosses are without notes, Chinese words and
/// accents, and not empty. The functions are pure; the views that they return refer into `gloss`.
namespace dictionary {

/// Cuts a title before its author or the kind of work: "A Tale of Two Cities by Charles Dickens",
/// "Evening Rain, 1980 movie about the Cultural Revolution".
std::u16string_view withoutAuthor(std::u16string_view gloss);

/// Cuts a proper name at its first comma: what follows says where or who it is. A common noun of at
/// most two words is cut before a capital: "triad, Chinese crime gang".
std::u16string_view withoutNameTail(std::u16string_view gloss);

}  // namespace dictionary
