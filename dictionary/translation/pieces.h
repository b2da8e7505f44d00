#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Dividing a line of a translation, after its head. The functions are pure.
namespace dictionary {

/// A part of a line between two separators, blanks trimmed, never empty.
struct RawPiece {
  std::u16string_view text;
  char16_t separator;  ///< ，；、！？ before it, in its wide form; 0 for the first
};

/// What a narrow colon between Han characters is: in lines of law it was typed for a comma
/// ("邪恶的, 罪恶的:堕落的, 不合法的"); in others it introduces an explanation.
enum class Colons { kExplain, kAreCommas };

/// Splits `text` at commas, semicolons, enumeration commas, exclamation marks and the question
/// marks between two questions, narrow or wide, outside brackets and quotation marks. A comma
/// between digits or foreign letters ("2,4-二氯苯") is not a separator. A part-of-speech mark right
/// after Chinese text begins a new piece, as if a semicolon preceded it. Takes time proportional to
/// the length. The pieces refer into `text`.
std::vector<RawPiece> splitPieces(std::u16string_view text, Colons colons);

/// Returns "apple的复数" if a note in the line, "(apple的复数)", marks its headword as an
/// inflected form; otherwise "".
std::u16string inflectionNote(std::u16string_view line);

/// Question marks end a question, or stand for a character that was lost when the source was
/// converted ("苯？唑", "?切迹").

/// Returns whether the text from `begin` to the question mark at `mark`, without it, is a question:
/// whether it has an interrogative (吗, 什么, 怎 …, 是不是) or is in a foreign language.
bool isQuestion(std::u16string_view text, std::size_t begin, std::size_t mark);

/// Returns whether a question mark in `text` stands for a lost character.
bool hasLostCharacterMark(std::u16string_view text);

}  // namespace dictionary
