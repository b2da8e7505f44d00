#pragma once

#include <cstddef>
#include <string_view>

/// Question marks in a translation: they end a question, or stand for a character that was lost
/// when the source was converted ("苯？唑", "?切迹"). The functions are pure.
namespace dictionary {

/// Returns whether the text from `begin` to the question mark at `mark`, without it, is a question:
/// whether it has an interrogative (吗, 什么, 怎 …, 是不是) or is in a foreign language.
bool isQuestion(std::u16string_view text, std::size_t begin, std::size_t mark);

/// Returns whether a question mark in `text` stands for a lost character.
bool hasLostCharacterMark(std::u16string_view text);

}  // namespace dictionary
