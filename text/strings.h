#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

/// Small operations on UTF-16 texts. Lengths count UTF-16 code units. They are pure and throw
/// nothing but std::bad_alloc.
namespace text {

/// Returns `number` in decimal, with a minus sign where it is negative, as SQL texts hold it.
inline std::u16string decimal(std::int64_t number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

/// Returns the concatenation of `parts`.
inline std::u16string joined(std::initializer_list<std::u16string_view> parts) {
  std::u16string whole;
  for (const std::u16string_view part : parts) whole.append(part);
  return whole;
}

/// Returns `text` without leading and trailing blanks (U+0020 only): a view into the same
/// characters.
constexpr std::u16string_view trimBlanks(std::u16string_view text) {
  const auto first = text.find_first_not_of(u' ');
  if (first == std::u16string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

/// Returns `whole` where it has at most `longest` code units; `longest` is at least 3. Otherwise
/// returns its beginning and its end, which are more useful of a path or a message than its middle,
/// joined by "…" to at most `longest` units. No surrogate pair is cut in two.
std::u16string shortened(std::u16string_view whole, std::size_t longest);

/// Returns `text` as a box of one line can hold it: with a blank for every line end (CR, LF or CR
/// LF).
std::u16string onOneLine(std::u16string_view text);

}  // namespace text
