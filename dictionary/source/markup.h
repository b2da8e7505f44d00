#pragma once

#include <string>
#include <string_view>

namespace dictionary {

/// Undoes entity codes such as "&beta;" and "&#946;", and the codes of small figures ("A&-{2}"
/// becomes "A2"). An entity that is not known becomes U+FFFD, which no row may hold, and so does
/// the number of a character that the source could not write ("<&14&>").
std::u16string decodeEntities(std::u16string_view text);

/// Turns every way to write a line break ("<br />", a backslash with "n", one with "r") into a line
/// feed, and deletes other tags ("<i>").
std::u16string breakLines(std::u16string_view text);

/// Whether one of the above would change `text`.
bool hasMarkup(std::u16string_view text);

}  // namespace dictionary
