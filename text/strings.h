#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

/// Small operations on UTF-16 texts. Lengths count UTF-16 code units. None of them fails, but for
/// std::bad_alloc.
namespace text {

/// The decimal digits of `number`, after a minus sign where it is negative.
inline std::u16string decimal(std::int64_t number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

/// The parts of a text, one after the other.
inline std::u16string joined(std::initializer_list<std::u16string_view> parts) {
  std::u16string whole;
  for (const std::u16string_view part : parts) whole.append(part);
  return whole;
}

/// `text` without leading and trailing blanks (U+0020 only); a view into the same characters.
constexpr std::u16string_view trimBlanks(std::u16string_view text) {
  const auto first = text.find_first_not_of(u' ');
  if (first == std::u16string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

/// `whole` where it has at most `longest` UTF-16 code units, at least 3; otherwise its beginning
/// and its end, which tell more about a path or a message than its middle, joined by "…" to at most
/// `longest` units. No surrogate pair is cut in two.
std::u16string shortened(std::u16string_view whole, std::size_t longest);

/// All of `text` as a box of one line can hold it: a blank for every line end (CR, LF or both).
std::u16string onOneLine(std::u16string_view text);

}  // namespace text
