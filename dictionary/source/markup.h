#pragma once

#include <string>
#include <string_view>

/// The source's markup: remnants of HTML and of the files from which it was compiled. All functions
/// are pure, take any text, and take time proportional to its length. Each makes one pass: what a
/// decoded code and its surroundings spell is not decoded again ("&amp;lt;" becomes "&lt;").
namespace dictionary {

/// Returns `text` with entity codes decoded ("&beta;", "&#946;", "&#x3B2;"), and the source's codes
/// for subscripts, superscripts and homograph numbers ("A&-{2}" becomes "A2"). An unknown entity
/// becomes U+FFFD, which no row may hold, and so does the number of a character that the source
/// could not write ("<&14&>").
std::u16string decodeEntities(std::u16string_view text);

/// Returns `text` with the marks around titles that were written as "<<" and ">>" replaced by the
/// proper ones: "<<可兰经>>" becomes "《可兰经》". Marks without their counterpart are unchanged.
std::u16string markTitles(std::u16string_view text);

/// Returns `text` with every spelling of a line break ("<br />", a backslash with "n", one with
/// "r") replaced by a line feed, tags between senses ("<X>") by a semicolon, and other tags deleted
/// ("<i>").
std::u16string breakLines(std::u16string_view text);

/// Returns whether decodeEntities() or breakLines() would change `text`.
bool hasMarkup(std::u16string_view text);

}  // namespace dictionary
